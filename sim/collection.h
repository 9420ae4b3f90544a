// SimCollection, the base of the simulated collections, and the helpers they
// share: 1-based index arguments, handing lists of objects out as Variants,
// and finding the simulated object behind an Object the add-in passes back.
//
// A collection derives from SimCollection<Element>, keeps its elements in
// `list_`, says what its Parent is, and starts its member table from
// CollectionMembers(): Count, Item, Parent, Application and enumeration.
// Item takes a position (1-based, out of range fails); a key that is not a
// number goes to ItemByKey, which by default reads it as a position, as the
// host's collections without names do:
//
//   class SimViews : public SimCollection<SimView> {
//     Variant ParentObject() override { return OrNothing(folder_.lock()); }
//     Variant ItemByKey(const Variant& key) override;   // by name
//   };
//   static const MemberTable table = [] {
//     MemberTable t = CollectionMembers();
//     Define<SimViews>(t).Method("Add", 2, 3, ...);
//     return t;
//   }();
#pragma once

#include <memory>
#include <vector>

#include "core/variant.h"
#include "sim/context.h"
#include "sim/errors.h"
#include "sim/sim_object.h"

namespace qvx::sim {

// A 1-based index argument as a 0-based position; out of range fails as the
// host's collections do.
inline size_t IndexArg(const Variant& index, size_t count) {
  const int32_t i = index.ToLong();
  if (i < 1 || static_cast<size_t>(i) > count) throw IndexOutOfBounds();
  return static_cast<size_t>(i - 1);
}

// True if an Item argument is a position rather than a name.
inline bool IsPositional(const Variant& index) {
  switch (index.Type()) {
    case VarType::Integer:
    case VarType::Long:
    case VarType::Double:
    case VarType::Currency:
      return true;
    default:
      return false;
  }
}

template <class T>
std::vector<Variant> AsVariants(const std::vector<std::shared_ptr<T>>& objects) {
  std::vector<Variant> out;
  out.reserve(objects.size());
  for (const auto& o : objects) out.push_back(o->AsVariant());
  return out;
}

template <class T>
Variant OrNothing(const std::shared_ptr<T>& object) {
  return object ? object->AsVariant() : Variant(Object());
}

// The simulated object of class T behind `object`, or null.
template <class T>
std::shared_ptr<T> SimCast(const Object& object) {
  return std::dynamic_pointer_cast<T>(object.shared());
}

// As SimCast, but an argument of another kind fails with a type mismatch.
template <class T>
std::shared_ptr<T> SimArg(const Variant& arg) {
  auto sim = SimCast<T>(arg.ToObject());
  if (!sim) throw Failure::Runtime(err::kTypeMismatch);
  return sim;
}

template <class Element>
class SimCollection : public SimObject {
 public:
  // `context` gives Application; null gives Nothing.
  explicit SimCollection(ContextPtr context) : context_(std::move(context)) {}

  const std::vector<std::shared_ptr<Element>>& list() const { return list_; }
  size_t size() const { return list_.size(); }

 protected:
  // What Parent gives.
  virtual Variant ParentObject() = 0;
  // Item with a key that is not a number.
  virtual Variant ItemByKey(const Variant& key) { return At(key)->AsVariant(); }

  // The element at a 1-based position; out of range fails.
  const std::shared_ptr<Element>& At(const Variant& index) const {
    return list_[IndexArg(index, list_.size())];
  }
  std::vector<Variant> Elements() override { return AsVariants(list_); }
  const ContextPtr& collectionContext() const { return context_; }

  static MemberTable CollectionMembers() {
    MemberTable t;
    Define<SimCollection>(t)
        .Get("Count", [](SimCollection& c) { return Variant(static_cast<int32_t>(c.size())); })
        .Method("Item", 1, 1,
                [](SimCollection& c, Args& a) {
                  return IsPositional(a[0]) ? c.At(a[0])->AsVariant() : c.ItemByKey(a[0]);
                })
        .Get("Parent", [](SimCollection& c) { return c.ParentObject(); })
        .Get("Application", [](SimCollection& c) {
          return c.context_ ? Variant(c.context_->Application()) : Variant(Object());
        });
    return t;
  }

  std::vector<std::shared_ptr<Element>> list_;

 private:
  ContextPtr context_;
};

}  // namespace qvx::sim
