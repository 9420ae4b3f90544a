// NativeObject: a late-bound object implemented in this process, with its
// members looked up by name without regard to case, as IDispatch does.
//
// A member answers property gets and method calls alike (the legacy runtime
// does not tell them apart for most objects); a put is routed to the same
// member with InvokeKind::Put and the new value last. An unknown member
// throws Failure 438.
//
//   auto o = std::make_shared<NativeObject>("Folder");
//   o->Define("Path", [](InvokeKind, std::vector<Variant>&) { return Variant("/tmp"); });
//   Object folder(o);
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/events.h"
#include "core/ordered_dictionary.h"
#include "core/variant.h"

namespace qvx::platform {

class NativeObject : public HostObject {
 public:
  using Member = std::function<Variant(InvokeKind kind, std::vector<Variant>& args)>;
  using Enumerator = std::function<std::vector<Variant>()>;

  explicit NativeObject(std::string typeName) : typeName_(std::move(typeName)) {}

  void Define(std::string_view name, Member member) { members_.Set(name, std::move(member)); }
  void DefineEnumerator(Enumerator enumerate) { enumerate_ = std::move(enumerate); }
  EventSource& events() { return events_; }

  Variant Invoke(std::string_view name, InvokeKind kind, std::vector<Variant>& args) override {
    Member* member = members_.Find(name);
    if (member == nullptr) throw Failure::Runtime(err::kNoSuchMember);
    return (*member)(kind, args);
  }
  std::string TypeName() const override { return typeName_; }
  std::vector<Variant> Enumerate() override {
    if (!enumerate_) throw Failure::Runtime(err::kNoSuchMember);
    return enumerate_();
  }
  Subscription Subscribe(std::string_view event, EventHandler handler) override {
    return events_.Subscribe(event, std::move(handler));
  }

 private:
  std::string typeName_;
  OrderedDictionary<Member> members_;
  Enumerator enumerate_;
  EventSource events_;
};

// The argument at `index`, or Failure 450 (wrong number of arguments) if absent.
inline const Variant& RequiredArg(const std::vector<Variant>& args, size_t index) {
  if (index >= args.size()) {
    throw Failure(450, "QVXClient", "Wrong number of arguments or invalid property assignment");
  }
  return args[index];
}

}  // namespace qvx::platform
