#include "platform/win32/object_factory_win32.h"

#include "platform/win32/win32_api.h"

#include "core/failure.h"
#include "platform/win32/dispatch_object.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win_handles.h"

namespace qvx::win32 {
namespace {

[[noreturn]] void CannotCreate() {
  throw Failure(platform::kCannotCreateObject, "QVXClient",
                "ActiveX component can't create object");
}

CLSID ClassOf(std::string_view progId) {
  const std::wstring name = Wide(progId);
  CLSID clsid{};
  if (name.empty() || FAILED(CLSIDFromProgID(name.c_str(), &clsid))) CannotCreate();
  return clsid;
}

}  // namespace

Object Win32ObjectFactory::CreateObject(std::string_view progId) {
  const CLSID clsid = ClassOf(progId);
  ComPtr<IDispatch> dispatch;
  if (FAILED(CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER,
                              IID_IDispatch, dispatch.PutVoid())) ||
      !dispatch) {
    CannotCreate();
  }
  return DispatchObject::Wrap(dispatch.get());
}

Object Win32ObjectFactory::GetObject(std::string_view progId) {
  const CLSID clsid = ClassOf(progId);
  ComPtr<IUnknown> running;
  ComPtr<IDispatch> dispatch;
  if (FAILED(GetActiveObject(clsid, nullptr, running.Put())) || !running ||
      FAILED(running->QueryInterface(IID_IDispatch, dispatch.PutVoid())) || !dispatch) {
    CannotCreate();
  }
  return DispatchObject::Wrap(dispatch.get());
}

}  // namespace qvx::win32
