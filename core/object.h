// Object: a counted handle to a late-bound host object, reached by name only.
//
// Behind it is HostObject, the one narrow interface that each host implements:
// the simulator natively, Windows through IDispatch. The add-in's logic never
// sees a typed host interface. A default-constructed Object is "Nothing".
//
//   Object ns = app.Call("GetNamespace", {Variant("MAPI")}).AsObject();
//   Variant name = ns.Call("GetDefaultFolder", {Variant(9)}).AsObject().Get("Name");
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace qvx {

class Variant;
class Object;

// Arguments of an event; a handler may write back into by-reference ones
// (a Cancel flag, say).
using EventArgs = std::vector<Variant>;
using EventHandler = std::function<void(EventArgs& args)>;

// Ends an event subscription when the last copy is released (or on Reset).
class Subscription {
 public:
  Subscription() = default;
  explicit Subscription(std::shared_ptr<void> token) : token_(std::move(token)) {}
  bool active() const noexcept { return token_ != nullptr; }
  void Reset() noexcept { token_.reset(); }

 private:
  std::shared_ptr<void> token_;
};

enum class InvokeKind { Get, Put, Call };

// What a host implements. Every member may throw Failure.
class HostObject {
 public:
  virtual ~HostObject() = default;
  // Property get, property put (args.back() is the new value) or method call.
  virtual Variant Invoke(std::string_view name, InvokeKind kind, std::vector<Variant>& args) = 0;
  // The host's type name, as the legacy TypeName() gives it ("Inspector").
  virtual std::string TypeName() const = 0;
  // The members of a collection, in the host's order.
  virtual std::vector<Variant> Enumerate() = 0;
  // Subscribes to an event of this object by its name ("NewExplorer").
  virtual Subscription Subscribe(std::string_view event, EventHandler handler) = 0;
  // Identity, for "Is" comparisons across handles.
  virtual const void* Identity() const { return this; }
};

class Object {
 public:
  Object() = default;
  explicit Object(std::shared_ptr<HostObject> impl) : impl_(std::move(impl)) {}

  bool IsNothing() const noexcept { return impl_ == nullptr; }
  explicit operator bool() const noexcept { return impl_ != nullptr; }

  // Each throws Failure 91 on Nothing, and whatever the host throws.
  Variant Get(std::string_view name) const;
  Variant Get(std::string_view name, std::vector<Variant> args) const;
  void Put(std::string_view name, const Variant& value) const;
  void Put(std::string_view name, std::vector<Variant> args, const Variant& value) const;
  Variant Call(std::string_view name) const;
  Variant Call(std::string_view name, std::vector<Variant> args) const;
  // By-reference call: the host may write back into args.
  Variant CallRef(std::string_view name, std::vector<Variant>& args) const;
  std::string TypeName() const;
  std::vector<Variant> Enumerate() const;
  Subscription Subscribe(std::string_view event, EventHandler handler) const;

  // True if both refer to the same host object ("Is").
  bool Is(const Object& other) const noexcept;
  bool operator==(const Object& other) const noexcept { return Is(other); }
  void Release() noexcept { impl_.reset(); }
  HostObject* host() const noexcept { return impl_.get(); }
  const std::shared_ptr<HostObject>& shared() const noexcept { return impl_; }

 private:
  HostObject& Checked() const;
  std::shared_ptr<HostObject> impl_;
};

}  // namespace qvx
