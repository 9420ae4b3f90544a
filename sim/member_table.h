// MemberTable: the members of a simulated object, looked up by name without
// regard to case, as IDispatch::GetIDsOfNames does.
//
// Property gets and method calls share one entry: the runtime reads a value
// with both flags set, so either kind reaches the getter or the method. A put
// goes to the setter. Each class builds its table once and derived classes
// start from a copy of their base's:
//
//   static const MemberTable table = [] {
//     MemberTable t = SimItem::CommonMembers();
//     Define<SimTask>(t)
//         .Prop("DueDate", [](SimTask& x) { return Variant(x.due); },
//               [](SimTask& x, const Variant& v) { x.due = v.ToDate(); })
//         .Method("MarkComplete", 0, 0, [](SimTask& x, Args&) { x.Complete(); return Variant(); });
//     return t;
//   }();
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "core/variant.h"

namespace qvx::sim {

class SimObject;
using Args = std::vector<Variant>;

struct Member {
  std::string name;
  std::function<Variant(SimObject&, Args&)> get;  // property get or method
  int minArgs = 0;
  int maxArgs = 0;
  std::function<void(SimObject&, Args&, const Variant&)> put;  // args without the value
  int putArgs = 0;                                             // index arguments of a put
};

class MemberTable {
 public:
  const Member* Find(std::string_view name) const;
  // The entry of `name`, created empty if new.
  Member& Entry(std::string_view name);
  std::vector<std::string> Names() const;

 private:
  std::unordered_map<std::string, Member> members_;  // by folded name
};

// Typed definitions for members of class T (a SimObject).
template <class T>
class Define {
 public:
  explicit Define(MemberTable& table) : table_(table) {}

  // A read-only property.
  Define& Get(std::string_view name, std::function<Variant(T&)> get) {
    Member& m = table_.Entry(name);
    m.get = [get = std::move(get)](SimObject& o, Args&) { return get(static_cast<T&>(o)); };
    m.minArgs = m.maxArgs = 0;
    return *this;
  }

  // A read-write property.
  Define& Prop(std::string_view name, std::function<Variant(T&)> get,
               std::function<void(T&, const Variant&)> put) {
    Get(name, std::move(get));
    Member& m = table_.Entry(name);
    m.put = [put = std::move(put)](SimObject& o, Args&, const Variant& v) {
      put(static_cast<T&>(o), v);
    };
    m.putArgs = 0;
    return *this;
  }

  // A method taking minArgs to maxArgs arguments.
  Define& Method(std::string_view name, int minArgs, int maxArgs,
                 std::function<Variant(T&, Args&)> call) {
    Member& m = table_.Entry(name);
    m.get = [call = std::move(call)](SimObject& o, Args& a) { return call(static_cast<T&>(o), a); };
    m.minArgs = minArgs;
    m.maxArgs = maxArgs;
    return *this;
  }

 private:
  MemberTable& table_;
};

// Argument readers with the runtime's conversions (13 type mismatch, 6 overflow).
// An argument left out (not passed, Empty, or Variant::Missing() in a gap)
// is absent.
inline bool HasArg(const Args& args, size_t i) {
  return i < args.size() && !args[i].IsEmpty() && !args[i].IsMissing();
}
inline int32_t LongArg(const Args& args, size_t i) {
  return args.at(i).ToLong();
}
inline std::string TextArg(const Args& args, size_t i) {
  return args.at(i).ToText();
}
inline bool BoolArg(const Args& args, size_t i) {
  return args.at(i).ToBoolean();
}
inline int32_t LongArgOr(const Args& args, size_t i, int32_t fallback) {
  return HasArg(args, i) ? args[i].ToLong() : fallback;
}
inline std::string TextArgOr(const Args& args, size_t i, std::string fallback) {
  return HasArg(args, i) ? args[i].ToText() : fallback;
}
inline bool BoolArgOr(const Args& args, size_t i, bool fallback) {
  return HasArg(args, i) ? args[i].ToBoolean() : fallback;
}

}  // namespace qvx::sim
