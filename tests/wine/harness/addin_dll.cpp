#include "harness/addin_dll.h"

#include "harness/check.h"
#include "harness/registry_keys.h"

namespace qvx::winetest {

std::wstring ProgramFolder() {
  wchar_t buffer[MAX_PATH * 2] = {};
  const DWORD n = GetModuleFileNameW(nullptr, buffer, static_cast<DWORD>(std::size(buffer)));
  std::wstring path(buffer, n);
  return path.substr(0, path.find_last_of(L"\\/") + 1);
}

AddinDll& AddinDll::Get() {
  static AddinDll dll;
  return dll;
}

AddinDll::AddinDll() : path_(ProgramFolder() + L"QVXClient.dll") {
  module_ = LoadLibraryW(path_.c_str());
  if (!module_) return;
  // The module's real name, as registration reads it.
  wchar_t buffer[MAX_PATH * 2] = {};
  const DWORD n = GetModuleFileNameW(module_, buffer, static_cast<DWORD>(std::size(buffer)));
  path_.assign(buffer, n);
  register_ = reinterpret_cast<Plain>(
      reinterpret_cast<void*>(GetProcAddress(module_, "DllRegisterServer")));
  unregister_ = reinterpret_cast<Plain>(
      reinterpret_cast<void*>(GetProcAddress(module_, "DllUnregisterServer")));
  canUnload_ =
      reinterpret_cast<Plain>(reinterpret_cast<void*>(GetProcAddress(module_, "DllCanUnloadNow")));
  classObject_ = reinterpret_cast<ClassObject>(
      reinterpret_cast<void*>(GetProcAddress(module_, "DllGetClassObject")));
}

ComPtr<com::IDTExtensibility2> CreateRegisteredAddin(const std::wstring& progId,
                                                     std::string& failure) {
  const std::wstring classes = L"Software\\Classes\\";
  const std::optional<std::wstring> clsidText = ReadText(classes + progId + L"\\CLSID", L"");
  if (!clsidText) {
    failure = "no CLSID under the ProgID";
    return {};
  }
  CLSID clsid{};
  if (FAILED(CLSIDFromString(clsidText->c_str(), &clsid))) {
    failure = "the ProgID's CLSID does not parse";
    return {};
  }
  const std::optional<std::wstring> server =
      ReadText(classes + L"CLSID\\" + *clsidText + L"\\InprocServer32", L"");
  if (!server) {
    failure = "no InprocServer32";
    return {};
  }
  HMODULE module = LoadLibraryW(server->c_str());
  if (!module) {
    failure = "the registered DLL does not load";
    return {};
  }
  using ClassObject = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
  auto getClassObject = reinterpret_cast<ClassObject>(
      reinterpret_cast<void*>(GetProcAddress(module, "DllGetClassObject")));
  // The module stays loaded for the process, as a host keeps it.
  ComPtr<IClassFactory> factory;
  if (!getClassObject || FAILED(getClassObject(clsid, IID_IClassFactory, factory.PutVoid()))) {
    failure = "DllGetClassObject failed";
    return {};
  }
  ComPtr<com::IDTExtensibility2> addin;
  const HRESULT hr = factory->CreateInstance(nullptr, com::IID_IDTExtensibility2, addin.PutVoid());
  if (FAILED(hr) || !addin) {
    failure = "CreateInstance failed: " + Describe(hr);
    return {};
  }
  return addin;
}

ComPtr<com::IDTExtensibility2> RegisterAndCreateAddin() {
  const AddinDll& dll = AddinDll::Get();
  REQUIRE(dll.Loaded());
  REQUIRE_EQ(dll.Register(), S_OK);
  std::string failure;
  ComPtr<com::IDTExtensibility2> addin = CreateRegisteredAddin(L"QVX_C.QVXClientDLL", failure);
  if (!addin) RecordFailure(__FILE__, __LINE__, failure);
  REQUIRE(addin);
  return addin;
}

}  // namespace qvx::winetest
