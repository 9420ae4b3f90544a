// QVXClient.dll as the tests load it: by its four exports, and as a host
// creates the add-in object from the per-user registration.
//
// Wine 8 does not read per-user classes (HKCU\Software\Classes) when
// resolving a ProgID or creating a class, so CreateRegisteredAddin follows
// the keys itself, as a host would on Windows through the merged view:
// ProgID -> CLSID -> InprocServer32 -> LoadLibrary -> DllGetClassObject ->
// IClassFactory::CreateInstance.
#pragma once

#include <windows.h>

#include <string>

#include "com/office_interfaces.h"
#include "platform/win32/win_handles.h"

namespace qvx::winetest {

using win32::ComPtr;

class AddinDll {
 public:
  // Loads QVXClient.dll from the test program's own folder (once).
  static AddinDll& Get();

  const std::wstring& path() const { return path_; }
  HMODULE module() const { return module_; }
  bool Loaded() const { return module_ && register_ && unregister_ && classObject_ && canUnload_; }

  HRESULT Register() const { return register_(); }
  HRESULT Unregister() const { return unregister_(); }
  HRESULT CanUnloadNow() const { return canUnload_(); }
  HRESULT GetClassObject(REFCLSID clsid, REFIID iid, void** out) const {
    return classObject_(clsid, iid, out);
  }

 private:
  AddinDll();

  using Plain = HRESULT(STDAPICALLTYPE*)();
  using ClassObject = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);

  std::wstring path_;
  HMODULE module_ = nullptr;
  Plain register_ = nullptr;
  Plain unregister_ = nullptr;
  Plain canUnload_ = nullptr;
  ClassObject classObject_ = nullptr;
};

// The folder of the running test program, with a trailing backslash.
std::wstring ProgramFolder();

// Creates the add-in object from the per-user registration of `progId`.
// Null with `failure` set when a step fails.
ComPtr<com::IDTExtensibility2> CreateRegisteredAddin(const std::wstring& progId,
                                                     std::string& failure);

// Registers the DLL and creates its add-in object: what each lifecycle test starts from.
ComPtr<com::IDTExtensibility2> RegisterAndCreateAddin();

}  // namespace qvx::winetest
