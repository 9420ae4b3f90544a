// Helpers shared by the simulated collections: 1-based index arguments,
// handing lists of objects out as Variants, and finding the simulated object
// behind an Object that the add-in passes back in.
#pragma once

#include <memory>
#include <vector>

#include "core/variant.h"
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

}  // namespace qvx::sim
