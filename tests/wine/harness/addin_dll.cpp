#include "harness/addin_dll.h"

#include "harness/check.h"
#include "harness/registry_keys.h"

namespace qvx::winetest {
namespace {

template <class Function>
Function Export(HMODULE module, const char* name) {
  auto function = reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
  REQUIRE(function);
  return function;
}

std::wstring ModulePath(HMODULE module) {
  wchar_t buffer[MAX_PATH * 2] = {};
  return std::wstring(buffer, GetModuleFileNameW(module, buffer, std::size(buffer)));
}

AddinDll Load() {
  const HMODULE module = LoadLibraryW((ProgramFolder() + L"QVXClient.dll").c_str());
  REQUIRE(module);
  return {ModulePath(module), Export<AddinDll::Plain>(module, "DllRegisterServer"),
          Export<AddinDll::Plain>(module, "DllUnregisterServer"),
          Export<AddinDll::Plain>(module, "DllCanUnloadNow"),
          Export<AddinDll::ClassObject>(module, "DllGetClassObject")};
}

}  // namespace

std::wstring ProgramFolder() {
  const std::wstring path = ModulePath(nullptr);
  return path.substr(0, path.find_last_of(L"\\/") + 1);
}

const AddinDll& Dll() {
  static const AddinDll dll = Load();
  return dll;
}

ComPtr<com::IDTExtensibility2> CreateRegisteredAddin() {
  const std::wstring classes = L"Software\\Classes\\";
  const std::optional<std::wstring> clsidText = ReadText(classes + kProgId + L"\\CLSID", L"");
  REQUIRE(clsidText);
  CLSID clsid{};
  REQUIRE(CLSIDFromString(clsidText->c_str(), &clsid) == NOERROR);
  const std::optional<std::wstring> server =
      ReadText(classes + L"CLSID\\" + *clsidText + L"\\InprocServer32", L"");
  REQUIRE(server);
  // The module stays loaded for the process, as a host keeps it.
  const HMODULE module = LoadLibraryW(server->c_str());
  REQUIRE(module);
  ComPtr<IClassFactory> factory;
  REQUIRE(Export<AddinDll::ClassObject>(module, "DllGetClassObject")(clsid, IID_IClassFactory,
                                                                     factory.PutVoid()) == S_OK);
  ComPtr<com::IDTExtensibility2> addin;
  REQUIRE(factory->CreateInstance(nullptr, com::IID_IDTExtensibility2, addin.PutVoid()) == S_OK);
  return addin;
}

}  // namespace qvx::winetest
