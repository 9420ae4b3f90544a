#include "platform/win32/registry_win32.h"

#include "platform/win32/win32_api.h"

#include "platform/win32/wide_text.h"

#include <algorithm>
#include <string>

#include "core/text.h"

namespace qvx::win32 {
namespace {

// Win32 wants terminated strings; the views need not be.
std::wstring Terminated(std::u16string_view s) {
  return std::wstring(reinterpret_cast<const wchar_t*>(s.data()), s.size());
}

HKEY ToHkey(platform::RegistryApi::Key key) {
  return reinterpret_cast<HKEY>(key);
}

HKEY Root(platform::Hive hive) {
  return hive == platform::Hive::LocalMachine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
}

// The handle when the call succeeded, else none.
platform::RegistryApi::Key Opened(long rc, HKEY handle) {
  return rc == ERROR_SUCCESS ? reinterpret_cast<platform::RegistryApi::Key>(handle) : 0;
}

}  // namespace

long Win32RegistryApi::CreateKey(platform::Hive hive, std::u16string_view subKey, Key& key) {
  HKEY handle = nullptr;
  const long rc = RegCreateKeyW(Root(hive), Terminated(subKey).c_str(), &handle);
  key = Opened(rc, handle);
  return rc;
}

long Win32RegistryApi::SetStringValue(Key key, std::u16string_view name, std::u16string_view data) {
  // REG_SZ with twice the character count as bytes: no terminator is written.
  return RegSetValueExW(ToHkey(key), Terminated(name).c_str(), 0, REG_SZ,
                        reinterpret_cast<const BYTE*>(data.data()),
                        static_cast<DWORD>(2 * data.size()));
}

long Win32RegistryApi::OpenKey(platform::Hive hive, std::u16string_view subKey, uint32_t access,
                               Key& key) {
  HKEY handle = nullptr;
  const long rc = RegOpenKeyExW(Root(hive), Terminated(subKey).c_str(), 0, access, &handle);
  key = Opened(rc, handle);
  return rc;
}

long Win32RegistryApi::OpenKeyA(platform::Hive hive, std::string_view ansiSubKey, uint32_t access,
                                Key& key) {
  HKEY handle = nullptr;
  const long rc = RegOpenKeyExA(Root(hive), ToAnsi(ansiSubKey).c_str(), 0, access, &handle);
  key = Opened(rc, handle);
  return rc;
}

long Win32RegistryApi::QueryValueInfoA(Key key, std::string_view ansiName, uint32_t& type,
                                       uint32_t& size) {
  const std::string name(ansiName);
  DWORD t = 0;
  DWORD s = 0;
  const long rc = RegQueryValueExA(ToHkey(key), name.c_str(), nullptr, &t, nullptr, &s);
  type = t;
  size = s;
  return rc;
}

long Win32RegistryApi::QueryValueA(Key key, std::string_view ansiName, uint32_t& type,
                                   std::string& buffer) {
  DWORD t = 0;
  std::string ansi(buffer.size(), '\0');
  DWORD bytes = static_cast<DWORD>(ansi.size());
  const long rc = RegQueryValueExA(ToHkey(key), ToAnsi(ansiName).c_str(), nullptr, &t,
                                   reinterpret_cast<BYTE*>(ansi.data()), &bytes);
  type = t;
  if (rc == ERROR_SUCCESS) {
    ansi.resize(bytes);
    buffer = FromAnsi(ansi);
  }
  return rc;
}

long Win32RegistryApi::QueryValueW(Key key, std::u16string_view name, std::u16string& buffer) {
  DWORD type = 0;
  DWORD bytes = static_cast<DWORD>(2 * buffer.size());
  return RegQueryValueExW(ToHkey(key), Terminated(name).c_str(), nullptr, &type,
                          reinterpret_cast<BYTE*>(buffer.data()), &bytes);
}

platform::RegistryApi::TextValue Win32RegistryApi::QueryTextValue(Key key,
                                                                  std::string_view ansiName) {
  // The ANSI size query fetches the whole value from the registry only to
  // count its ANSI bytes, and the wide read after it fetches it again: for a
  // large catalogue, a megabyte and more twice. An ASCII text has as many
  // ANSI bytes as units in every code page, so one wide read answers both;
  // any other name, type or text takes the two calls, whose answers it keeps.
  const auto ascii = [](auto text) {
    return std::all_of(text.begin(), text.end(), [](auto c) { return (c & ~0x7F) == 0; });
  };
  if (!ascii(ansiName)) return RegistryApi::QueryTextValue(key, ansiName);
  const std::wstring name(ansiName.begin(), ansiName.end());
  std::u16string data(256, u'\0');
  DWORD type = 0;
  DWORD bytes = 0;
  long rc = ERROR_MORE_DATA;
  while (rc == ERROR_MORE_DATA) {  // again if the value grew in between
    if (bytes > 2 * data.size()) data.assign((bytes + 1) / 2, u'\0');
    bytes = static_cast<DWORD>(2 * data.size());
    rc = RegQueryValueExW(ToHkey(key), name.c_str(), nullptr, &type,
                          reinterpret_cast<BYTE*>(data.data()), &bytes);
    if (rc == ERROR_MORE_DATA && bytes <= 2 * data.size()) bytes = 4 * data.size();
  }
  TextValue value;
  value.type = type;
  if (rc != ERROR_SUCCESS) {
    value.info = rc;
    return value;
  }
  data.resize(bytes / 2);
  if (type != REG_SZ || bytes % 2 != 0 || !ascii(std::u16string_view(data))) {
    return RegistryApi::QueryTextValue(key, ansiName);
  }
  value.size = static_cast<uint32_t>(data.size());
  if (!data.empty()) {
    data.pop_back();  // the terminator's place
    value.text = Utf16ToUtf8(data);
  }
  return value;
}

long Win32RegistryApi::CloseKey(Key key) {
  return RegCloseKey(ToHkey(key));
}

}  // namespace qvx::win32
