// QVXClient.dll as the tests load it: by its four exports, and the add-in
// object as a host creates it from the per-user registration.
#pragma once

#include <windows.h>

#include <string>

#include "com/office_interfaces.h"
#include "platform/win32/win_handles.h"

namespace qvx::winetest {

using win32::ComPtr;

inline constexpr wchar_t kProgId[] = L"QVX_C.QVXClientDLL";

struct AddinDll {
  using Plain = HRESULT(STDAPICALLTYPE*)();
  using ClassObject = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
  std::wstring path;  // the loaded module's own name, as registration reads it
  Plain Register = nullptr;
  Plain Unregister = nullptr;
  Plain CanUnloadNow = nullptr;
  ClassObject GetClassObject = nullptr;
};

// QVXClient.dll from the test program's own folder, loaded once; REQUIREs
// the four exports.
const AddinDll& Dll();

// The folder of the running test program, with a trailing backslash.
std::wstring ProgramFolder();

// Creates the add-in object from the per-user registration of its ProgID.
// Wine 8 does not read per-user classes (HKCU\Software\Classes) when it
// resolves a ProgID, so this follows the keys itself, as Windows does through
// its merged view: ProgID -> CLSID -> InprocServer32 -> LoadLibrary ->
// DllGetClassObject -> IClassFactory::CreateInstance. REQUIREs each step.
ComPtr<com::IDTExtensibility2> CreateRegisteredAddin();

}  // namespace qvx::winetest
