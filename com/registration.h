// Self-registration, per user only (HKEY_CURRENT_USER):
//
// clang-format off
//   Software\Classes\CLSID\{clsid}        (Default) "QVX_C.QVXClientDLL"
//     InprocServer32                      (Default) the DLL's path, ThreadingModel "Apartment"
//     ProgID                              (Default) "QVX_C.QVXClientDLL"
//   Software\Classes\QVX_C.QVXClientDLL   (Default) "QVX_C.QVXClientDLL"
//     CLSID                               (Default) "{clsid}"
//   Software\Microsoft\Office\Outlook\Addins\QVX_C.QVXClientDLL
//                                         FriendlyName, Description (REG_SZ), LoadBehavior (DWORD 3)
// clang-format on
//
// Registration that fails half-way undoes what it did: keys it created go,
// values it replaced get their old data back. Unregistration removes the
// values registration writes and each of the keys above that is then empty;
// a key that still holds something foreign stays (S_FALSE). Nothing else is
// touched, the add-in's settings under Software\Zenbrook least of all.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/win32/win32_api.h"

namespace qvx::com {

// A registry value as read back, for undoing a write.
struct RegistryValue {
  DWORD type = REG_NONE;
  std::vector<BYTE> data;
};

// The registry writes of registration, all relative to HKEY_CURRENT_USER.
// The seam lets a test make any one of them fail.
class RegistryWriter {
 public:
  virtual ~RegistryWriter() = default;
  virtual bool KeyExists(const std::wstring& key) = 0;
  // Creates one key whose parent exists.
  virtual LSTATUS CreateKey(const std::wstring& key) = 0;
  virtual std::optional<RegistryValue> ReadValue(const std::wstring& key,
                                                 const std::wstring& name) = 0;
  virtual LSTATUS WriteValue(const std::wstring& key, const std::wstring& name,
                             const RegistryValue& value) = 0;
  virtual LSTATUS DeleteValue(const std::wstring& key, const std::wstring& name) = 0;
  // Deletes a key only if it has neither values nor subkeys.
  virtual LSTATUS DeleteEmptyKey(const std::wstring& key) = 0;
};

class Win32RegistryWriter final : public RegistryWriter {
 public:
  bool KeyExists(const std::wstring& key) override;
  LSTATUS CreateKey(const std::wstring& key) override;
  std::optional<RegistryValue> ReadValue(const std::wstring& key,
                                         const std::wstring& name) override;
  LSTATUS WriteValue(const std::wstring& key, const std::wstring& name,
                     const RegistryValue& value) override;
  LSTATUS DeleteValue(const std::wstring& key, const std::wstring& name) override;
  LSTATUS DeleteEmptyKey(const std::wstring& key) override;
};

// S_OK, or SELFREG_E_CLASS after undoing a partial registration.
HRESULT RegisterServer(RegistryWriter& registry, const std::wstring& dllPath) noexcept;
// S_OK, S_FALSE if foreign entries kept a key, SELFREG_E_CLASS on failure.
HRESULT UnregisterServer(RegistryWriter& registry) noexcept;

// REG_SZ data as written: UTF-16 with its terminator.
RegistryValue StringValue(const std::wstring& text);
RegistryValue DwordValue(DWORD number);

}  // namespace qvx::com
