// DispatchObject: qvx::HostObject over a host's IDispatch, so that the logic
// reaches Outlook's objects by name through qvx::Object.
//
// Get, Put and Call go through GetIDsOfNames and Invoke (arguments reversed
// into DISPPARAMS, a put's value as the named DISPID_PROPERTYPUT argument);
// Enumerate through _NewEnum and IEnumVARIANT; TypeName through the type
// information; Subscribe through the connection point that carries the event
// (host_events.h). Every host error becomes a Failure (variant_convert.h).
#pragma once

#include "platform/win32/win32_api.h"

#include <map>
#include <string>

#include "core/object.h"
#include "platform/win32/win_handles.h"

namespace qvx::win32 {

class DispatchObject final : public HostObject {
 public:
  // Wraps `dispatch` (taking a new reference); Nothing for a null pointer.
  static Object Wrap(IDispatch* dispatch);

  explicit DispatchObject(IDispatch* dispatch);
  ~DispatchObject() override;

  Variant Invoke(std::string_view name, InvokeKind kind, std::vector<Variant>& args) override;
  std::string TypeName() const override;
  std::vector<Variant> Enumerate() override;
  Subscription Subscribe(std::string_view event, EventHandler handler) override;
  const void* Identity() const override { return identity_.get(); }

  IDispatch* dispatch() const noexcept { return dispatch_.get(); }

 private:
  DISPID IdOf(std::string_view name);

  ComPtr<IDispatch> dispatch_;
  ComPtr<IUnknown> identity_;          // COM identity: the object's IUnknown
  std::map<std::string, DISPID> ids_;  // by case-folded name
};

}  // namespace qvx::win32
