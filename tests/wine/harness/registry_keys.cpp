#include "harness/registry_keys.h"

#include "harness/check.h"
#include "platform/win32/win_handles.h"

namespace qvx::winetest {

bool KeyExists(const std::wstring& key, HKEY root) {
  win32::UniqueHkey k;
  return RegOpenKeyExW(root, key.c_str(), 0, KEY_READ, k.Put()) == ERROR_SUCCESS;
}

std::optional<std::wstring> ReadText(const std::wstring& key, const std::wstring& name) {
  wchar_t text[1024];
  DWORD size = sizeof(text);
  if (RegGetValueW(HKEY_CURRENT_USER, key.c_str(), name.c_str(), RRF_RT_REG_SZ | RRF_NOEXPAND,
                   nullptr, text, &size) != ERROR_SUCCESS) {
    return std::nullopt;
  }
  return std::wstring(text);
}

std::optional<DWORD> ReadDword(const std::wstring& key, const std::wstring& name) {
  DWORD value = 0;
  DWORD size = sizeof(value);
  if (RegGetValueW(HKEY_CURRENT_USER, key.c_str(), name.c_str(), RRF_RT_REG_DWORD, nullptr, &value,
                   &size) != ERROR_SUCCESS) {
    return std::nullopt;
  }
  return value;
}

void WriteText(const std::wstring& key, const std::wstring& name, const std::wstring& value) {
  REQUIRE(RegSetKeyValueW(HKEY_CURRENT_USER, key.c_str(), name.c_str(), REG_SZ, value.c_str(),
                          static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t))) ==
          ERROR_SUCCESS);
}

void DeleteTree(const std::wstring& key) {
  const LSTATUS rc = RegDeleteTreeW(HKEY_CURRENT_USER, key.c_str());
  REQUIRE(rc == ERROR_SUCCESS || rc == ERROR_FILE_NOT_FOUND);
}

void WriteSettings(const std::vector<std::pair<std::wstring, std::wstring>>& values) {
  DeleteTree(kSettingsKey);
  for (const auto& [name, value] : values) WriteText(kSettingsKey, name, value);
}

void WriteConfiguredUser(const std::wstring& catalogue, const std::wstring& autoSync) {
  WriteSettings({{L"DBChoice", L"1"},
                 {L"DBConnectionString", L"DSN=Timesheets"},
                 {L"AutoSyncToDB", autoSync},
                 {L"AllowAppointmentItems", L"-1"},
                 {L"AllowTaskItems", L"-1"},
                 {L"showProjectTaskToolbar", L"-1"},
                 {L"showCustomFieldsToolbar", L"-1"},
                 {L"MyProjectsTasks", catalogue}});
}

}  // namespace qvx::winetest
