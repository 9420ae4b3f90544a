// The DLL's four exports (QVXClient.def names exactly these).
#include <string>
#include <vector>

#include "com/class_factory.h"
#include "com/com_entry.h"
#include "com/registration.h"
#include "platform/win32/com_module.h"
#include "platform/win32/win32_api.h"

namespace {

std::wstring ThisDllPath() {
  std::vector<wchar_t> buffer(MAX_PATH);
  for (;;) {
    const DWORD n = GetModuleFileNameW(qvx::win32::ThisModule(), buffer.data(),
                                       static_cast<DWORD>(buffer.size()));
    if (n == 0) return {};
    if (n < buffer.size()) return std::wstring(buffer.data(), n);
    buffer.resize(buffer.size() * 2);
  }
}

}  // namespace

extern "C" {

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
  if (reason == DLL_PROCESS_ATTACH) DisableThreadLibraryCalls(instance);
  return TRUE;
}

HRESULT STDAPICALLTYPE DllGetClassObject(REFCLSID clsid, REFIID riid, LPVOID* ppv) {
  return qvx::com::GetClassObject(clsid, riid, ppv);
}

HRESULT STDAPICALLTYPE DllCanUnloadNow() {
  return qvx::win32::ModuleCanUnload() ? S_OK : S_FALSE;
}

HRESULT STDAPICALLTYPE DllRegisterServer() {
  return qvx::com::ComEntry([]() -> HRESULT {
    const std::wstring path = ThisDllPath();
    if (path.empty()) return SELFREG_E_CLASS;
    qvx::com::Win32RegistryWriter registry;
    return qvx::com::RegisterServer(registry, path);
  });
}

HRESULT STDAPICALLTYPE DllUnregisterServer() {
  return qvx::com::ComEntry([]() -> HRESULT {
    qvx::com::Win32RegistryWriter registry;
    return qvx::com::UnregisterServer(registry);
  });
}

}  // extern "C"
