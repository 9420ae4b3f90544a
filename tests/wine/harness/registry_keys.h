// The test side's own registry access under HKEY_CURRENT_USER, through the
// plain Win32 calls: to write the add-in's settings as the companion writes
// them (REG_SZ text) and to read back what registration wrote.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace qvx::winetest {

inline constexpr wchar_t kSettingsKey[] = L"Software\\Zenbrook\\QVX";

bool KeyExists(const std::wstring& key, HKEY root = HKEY_CURRENT_USER);
// Nothing unless the value is there with exactly this type.
std::optional<std::wstring> ReadText(const std::wstring& key, const std::wstring& name);
std::optional<DWORD> ReadDword(const std::wstring& key, const std::wstring& name);
// Creates the key as needed; REQUIREs success.
void WriteText(const std::wstring& key, const std::wstring& name, const std::wstring& value);
// Removes the key with everything below it; a missing key is fine.
void DeleteTree(const std::wstring& key);
// Replaces the add-in's settings key with exactly these values (none: no key).
void WriteSettings(const std::vector<std::pair<std::wstring, std::wstring>>& values);
// The settings of a configured user of appointments and tasks with both
// toolbars shown, with this catalogue and automatic synchronisation.
void WriteConfiguredUser(const std::wstring& catalogue, const std::wstring& autoSync = L"-1");

}  // namespace qvx::winetest
