#include "harness/registry_keys.h"

#include "harness/check.h"

namespace qvx::winetest {
namespace {

class Key {
 public:
  Key(const std::wstring& path, REGSAM access) {
    if (RegOpenKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, access, &key_) != ERROR_SUCCESS) {
      key_ = nullptr;
    }
  }
  Key(const Key&) = delete;
  Key& operator=(const Key&) = delete;
  ~Key() {
    if (key_) RegCloseKey(key_);
  }
  HKEY get() const { return key_; }

 private:
  HKEY key_ = nullptr;
};

}  // namespace

bool KeyExists(const std::wstring& key) {
  return Key(key, KEY_READ).get() != nullptr;
}

DWORD ValueType(const std::wstring& key, const std::wstring& name) {
  Key k(key, KEY_READ);
  DWORD type = REG_NONE;
  if (!k.get() ||
      RegQueryValueExW(k.get(), name.c_str(), nullptr, &type, nullptr, nullptr) != ERROR_SUCCESS) {
    return REG_NONE;
  }
  return type;
}

std::optional<std::wstring> ReadText(const std::wstring& key, const std::wstring& name) {
  Key k(key, KEY_READ);
  DWORD type = REG_NONE;
  DWORD size = 0;
  if (!k.get() ||
      RegQueryValueExW(k.get(), name.c_str(), nullptr, &type, nullptr, &size) != ERROR_SUCCESS ||
      type != REG_SZ) {
    return std::nullopt;
  }
  std::wstring text(size / sizeof(wchar_t) + 1, L'\0');
  size = static_cast<DWORD>(text.size() * sizeof(wchar_t));
  if (RegQueryValueExW(k.get(), name.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(text.data()),
                       &size) != ERROR_SUCCESS) {
    return std::nullopt;
  }
  text.resize(size / sizeof(wchar_t));
  while (!text.empty() && text.back() == L'\0') text.pop_back();
  return text;
}

std::optional<DWORD> ReadDword(const std::wstring& key, const std::wstring& name) {
  Key k(key, KEY_READ);
  DWORD type = REG_NONE;
  DWORD value = 0;
  DWORD size = sizeof(value);
  if (!k.get() ||
      RegQueryValueExW(k.get(), name.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(&value),
                       &size) != ERROR_SUCCESS ||
      type != REG_DWORD) {
    return std::nullopt;
  }
  return value;
}

void WriteText(const std::wstring& key, const std::wstring& name, const std::wstring& value) {
  HKEY k = nullptr;
  REQUIRE(RegCreateKeyExW(HKEY_CURRENT_USER, key.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                          KEY_SET_VALUE, nullptr, &k, nullptr) == ERROR_SUCCESS);
  const LSTATUS rc =
      RegSetValueExW(k, name.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(value.c_str()),
                     static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t)));
  RegCloseKey(k);
  REQUIRE(rc == ERROR_SUCCESS);
}

void DeleteTree(const std::wstring& key) {
  const LSTATUS rc = RegDeleteTreeW(HKEY_CURRENT_USER, key.c_str());
  REQUIRE(rc == ERROR_SUCCESS || rc == ERROR_FILE_NOT_FOUND);
  // RegDeleteTree leaves the key itself on some systems.
  const LSTATUS gone = RegDeleteKeyW(HKEY_CURRENT_USER, key.c_str());
  REQUIRE(gone == ERROR_SUCCESS || gone == ERROR_FILE_NOT_FOUND);
}

void WriteSettings(const std::vector<std::pair<std::wstring, std::wstring>>& values) {
  DeleteTree(kSettingsKey);
  HKEY k = nullptr;
  REQUIRE(RegCreateKeyExW(HKEY_CURRENT_USER, kSettingsKey, 0, nullptr, REG_OPTION_NON_VOLATILE,
                          KEY_SET_VALUE, nullptr, &k, nullptr) == ERROR_SUCCESS);
  RegCloseKey(k);
  for (const auto& [name, value] : values) WriteText(kSettingsKey, name, value);
}

}  // namespace qvx::winetest
