// The class factory of QVXClientDLL, handed out by DllGetClassObject.
#pragma once

#include "platform/win32/com_module.h"
#include "platform/win32/ref_count.h"
#include "platform/win32/win32_api.h"

namespace qvx::com {

class ClassFactory final : public IClassFactory, private win32::ModuleCounted {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** ppv) noexcept override;
  ULONG STDMETHODCALLTYPE AddRef() noexcept override;
  ULONG STDMETHODCALLTYPE Release() noexcept override;
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID riid,
                                           void** ppv) noexcept override;
  HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) noexcept override;

 private:
  ~ClassFactory() = default;
  win32::RefCount refs_;
};

// DllGetClassObject's work: the factory for our CLSID only.
HRESULT GetClassObject(REFCLSID clsid, REFIID riid, void** ppv) noexcept;

}  // namespace qvx::com
