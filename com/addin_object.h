// QVXClientDLL: the COM add-in object that Outlook creates.
//
// It implements IDTExtensibility2 (called through the vtable) and
// IRibbonExtensibility, and forwards both to qvx::QVXClientAddin, built on
// the Windows platform. Its IDispatch is where the host calls the ribbon
// callbacks by name: GetIDsOfNames knows every name the add-in has a callback
// for (case-blind), Invoke passes the arguments in the callback's signature
// order (DISPPARAMS hold them last to first), IRibbonControl and IRibbonUI as
// Objects, writes by-reference arguments back and a getter's value into
// pVarResult. Every method is noexcept and ends in ComEntry: bad pointers and
// arguments give error HRESULTs, never a crash. The object counts itself in
// the module while alive; its last Release terminates the add-in.
#pragma once

#include <memory>

#include "com/callback_table.h"
#include "com/office_interfaces.h"
#include "platform/win32/com_module.h"
#include "platform/win32/ref_count.h"

namespace qvx {
class QVXClientAddin;
}
namespace qvx::win32 {
class Win32Platform;
}

namespace qvx::com {

class QVXClientDLL final : public IDTExtensibility2,
                           public IRibbonExtensibility,
                           private win32::ModuleCounted {
 public:
  QVXClientDLL();

  // IUnknown
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** ppv) noexcept override;
  ULONG STDMETHODCALLTYPE AddRef() noexcept override;
  ULONG STDMETHODCALLTYPE Release() noexcept override;

  // IDispatch: the ribbon callbacks.
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID lcid, ITypeInfo** info) noexcept override;
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID riid, LPOLESTR* names, UINT count, LCID lcid,
                                          DISPID* ids) noexcept override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID riid, LCID lcid, WORD flags,
                                   DISPPARAMS* params, VARIANT* result, EXCEPINFO* excep,
                                   UINT* argError) noexcept override;

  // IDTExtensibility2
  HRESULT STDMETHODCALLTYPE OnConnection(IDispatch* application, ext_ConnectMode connectMode,
                                         IDispatch* addInInst,
                                         SAFEARRAY** custom) noexcept override;
  HRESULT STDMETHODCALLTYPE OnDisconnection(ext_DisconnectMode removeMode,
                                            SAFEARRAY** custom) noexcept override;
  HRESULT STDMETHODCALLTYPE OnAddInsUpdate(SAFEARRAY** custom) noexcept override;
  HRESULT STDMETHODCALLTYPE OnStartupComplete(SAFEARRAY** custom) noexcept override;
  HRESULT STDMETHODCALLTYPE OnBeginShutdown(SAFEARRAY** custom) noexcept override;

  // IRibbonExtensibility
  HRESULT STDMETHODCALLTYPE GetCustomUI(BSTR ribbonId, BSTR* ribbonXml) noexcept override;

 private:
  ~QVXClientDLL();

  win32::RefCount refs_;
  std::unique_ptr<win32::Win32Platform> platform_;
  std::unique_ptr<QVXClientAddin> addin_;
  CallbackTable callbacks_;
};

}  // namespace qvx::com
