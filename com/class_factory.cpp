#include "com/class_factory.h"

#include "com/addin_object.h"
#include "com/class_ids.h"
#include "com/com_entry.h"

namespace qvx::com {

HRESULT ClassFactory::QueryInterface(REFIID riid, void** ppv) noexcept {
  if (!ppv) return E_POINTER;
  *ppv = nullptr;
  if (!IsEqualIID(riid, IID_IUnknown) && !IsEqualIID(riid, IID_IClassFactory)) {
    return E_NOINTERFACE;
  }
  *ppv = static_cast<IClassFactory*>(this);
  AddRef();
  return S_OK;
}

ULONG ClassFactory::AddRef() noexcept {
  return refs_.Add();
}

ULONG ClassFactory::Release() noexcept {
  return refs_.Release([this] { delete this; });
}

HRESULT ClassFactory::CreateInstance(IUnknown* outer, REFIID riid, void** ppv) noexcept {
  return ComEntry([&]() -> HRESULT {
    if (!ppv) return E_POINTER;
    *ppv = nullptr;
    if (outer) return CLASS_E_NOAGGREGATION;
    auto* object = new QVXClientDLL();
    const HRESULT hr = object->QueryInterface(riid, ppv);
    object->Release();
    return hr;
  });
}

HRESULT ClassFactory::LockServer(BOOL lock) noexcept {
  win32::ModuleLock(lock != FALSE);
  return S_OK;
}

HRESULT GetClassObject(REFCLSID clsid, REFIID riid, void** ppv) noexcept {
  return ComEntry([&]() -> HRESULT {
    if (!ppv) return E_POINTER;
    *ppv = nullptr;
    if (!IsEqualCLSID(clsid, kClsidQVXClientDLL)) return CLASS_E_CLASSNOTAVAILABLE;
    auto* factory = new ClassFactory();
    const HRESULT hr = factory->QueryInterface(riid, ppv);
    factory->Release();
    return hr;
  });
}

}  // namespace qvx::com
