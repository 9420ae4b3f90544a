// DispatchObject: qvx::HostObject over a host's IDispatch, so that the logic
// reaches Outlook's objects by name through qvx::Object.
//
// Get, Put and Call go through GetIDsOfNames and Invoke (arguments reversed
// into DISPPARAMS, a put's value as the named DISPID_PROPERTYPUT argument);
// Enumerate through _NewEnum and IEnumVARIANT; TypeName through the type
// information; Subscribe through the connection point that carries the event
// (host_events.h). Every host error becomes a Failure (variant_convert.h).
//
// DISPIDs: a wrapper made with the add-in's shared MemberIds (its state's)
// looks a name up once per type of object: the type is the GUID of the
// object's type information (GetTypeInfo(0), its TYPEATTR), the interface
// whose DISPIDs the host's type library fixes for every object of it. Every
// object a wrapper hands out (results, enumerated members, event arguments)
// shares the same ids. An object without usable type information, or a
// wrapper made without shared ids or after they are gone, remembers the ids
// of its own object only.
#pragma once

#include "platform/win32/win32_api.h"

#include <map>
#include <memory>
#include <optional>
#include <string>

#include "core/object.h"
#include "platform/member_ids.h"
#include "platform/win32/win_handles.h"

namespace qvx::win32 {

class DispatchObject final : public HostObject {
 public:
  // Wraps `dispatch` (taking a new reference); Nothing for a null pointer.
  static Object Wrap(IDispatch* dispatch, platform::SharedMemberIds shared = {});

  explicit DispatchObject(IDispatch* dispatch, platform::SharedMemberIds shared = {});
  ~DispatchObject() override;

  Variant Invoke(std::string_view name, InvokeKind kind, std::vector<Variant>& args) override;
  std::string TypeName() const override;
  std::vector<Variant> Enumerate() override;
  Subscription Subscribe(std::string_view event, EventHandler handler) override;
  const void* Identity() const override { return identity_.get(); }

  IDispatch* dispatch() const noexcept { return dispatch_.get(); }

 private:
  // What the object's type information (GetTypeInfo(0)) says, asked once.
  struct TypeFacts {
    std::string key;   // of the type in the shared ids; "" when it fixes no DISPIDs
    std::string name;  // as TypeName() gives it where the class says nothing
  };
  const TypeFacts& Type() const;
  DISPID IdOf(std::string_view name);

  ComPtr<IDispatch> dispatch_;
  ComPtr<IUnknown> identity_;  // COM identity: the object's IUnknown
  platform::SharedMemberIds shared_;
  mutable std::optional<TypeFacts> type_;
  std::map<std::string, DISPID, std::less<>> ids_;  // this object's, by case-folded name
};

}  // namespace qvx::win32
