// An IDispatch face over any qvx::HostObject, for objects of this process
// that a COM caller must reach by name: a native object the logic hands to
// the host, and the Wine test host's Outlook model, which is written as
// HostObjects and shown to the add-in DLL through this face.
//
// The face answers GetIDsOfNames with ids of its own for any name, and Invoke
// by calling the HostObject (arguments in signature order, a put's value
// last). DISPID_NEWENUM enumerates. A Failure from the HostObject goes back as
// DISP_E_EXCEPTION with EXCEPINFO (number, source, description); Failure 438
// as DISP_E_MEMBERNOTFOUND; Failure 449, a required argument omitted, as
// DISP_E_PARAMNOTFOUND with the omitted one in argError. Events: IConnectionPointContainer offers
// the dispinterface that Outlook gives objects of the host's TypeName()
// ("Explorer" -> ExplorerEvents_10), and forwards each event the HostObject
// raises to the advised sink's Invoke with the event's DISPID. Boolean event
// arguments travel by reference, so that a sink can set Cancel.
//
// One face per host object: asking twice gives the same IDispatch, so COM
// identity matches the object's identity. DISPIDs are the same for every
// object of a TypeName(), and the type information's TYPEATTR carries a GUID
// of that type, as a host's type library makes them.
#pragma once

#include "platform/win32/win32_api.h"

#include <cstdint>
#include <memory>

#include "core/object.h"
#include "platform/win32/win_handles.h"

namespace qvx::win32 {

// The IDispatch for an Object: an adapter object's own, or a face; null for Nothing.
ComPtr<IDispatch> DispatchOf(const Object& object);
ComPtr<IDispatch> MakeDispatchFace(std::shared_ptr<HostObject> host);
// What COM callers asked of this module's faces: the Wine test host counts
// the calls an add-in makes on its simulated Outlook with it.
struct FaceCalls {
  uint64_t invokes = 0;
  uint64_t nameLookups = 0;  // GetIDsOfNames
  uint64_t typeInfos = 0;    // GetTypeInfo
};
FaceCalls& FaceCallCounts() noexcept;

// The HostObject behind a face of this module, or null for any other IDispatch.
std::shared_ptr<HostObject> HostBehindFace(IDispatch* dispatch) noexcept;

}  // namespace qvx::win32
