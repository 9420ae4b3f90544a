#include "core/object.h"

#include "core/failure.h"
#include "core/variant.h"

namespace qvx {

HostObject& Object::Checked() const {
  if (!impl_) throw Failure::Runtime(err::kObjectNotSet);
  return *impl_;
}

Variant Object::Get(std::string_view name) const {
  std::vector<Variant> args;
  return Checked().Invoke(name, InvokeKind::Get, args);
}

Variant Object::Get(std::string_view name, std::vector<Variant> args) const {
  return Checked().Invoke(name, InvokeKind::Get, args);
}

void Object::Put(std::string_view name, const Variant& value) const {
  std::vector<Variant> args{value};
  Checked().Invoke(name, InvokeKind::Put, args);
}

void Object::Put(std::string_view name, std::vector<Variant> args, const Variant& value) const {
  args.push_back(value);
  Checked().Invoke(name, InvokeKind::Put, args);
}

Variant Object::Call(std::string_view name) const {
  std::vector<Variant> args;
  return Checked().Invoke(name, InvokeKind::Call, args);
}

Variant Object::Call(std::string_view name, std::vector<Variant> args) const {
  return Checked().Invoke(name, InvokeKind::Call, args);
}

Variant Object::CallRef(std::string_view name, std::vector<Variant>& args) const {
  return Checked().Invoke(name, InvokeKind::Call, args);
}

std::string Object::TypeName() const {
  if (!impl_) return "Nothing";
  return impl_->TypeName();
}

std::vector<Variant> Object::Enumerate() const {
  return Checked().Enumerate();
}

Subscription Object::Subscribe(std::string_view event, EventHandler handler) const {
  return Checked().Subscribe(event, std::move(handler));
}

bool Object::Is(const Object& other) const noexcept {
  if (!impl_ || !other.impl_) return impl_ == other.impl_;
  return impl_->Identity() == other.impl_->Identity();
}

}  // namespace qvx
