// RegistryApi over the Win32 registry calls, under HKEY_CURRENT_USER or
// HKEY_LOCAL_MACHINE as the caller asks.
#pragma once

#include "platform/registry_api.h"

namespace qvx::win32 {

class Win32RegistryApi final : public platform::RegistryApi {
 public:
  long CreateKey(platform::Hive hive, std::u16string_view subKey, Key& key) override;
  long SetStringValue(Key key, std::u16string_view name, std::u16string_view data) override;
  long OpenKey(platform::Hive hive, std::u16string_view subKey, uint32_t access, Key& key) override;
  // OpenKeyA and QueryValueA convert between UTF-8 and the ANSI code page.
  long OpenKeyA(platform::Hive hive, std::string_view ansiSubKey, uint32_t access,
                Key& key) override;
  // The name is passed through as bytes of the ANSI code page.
  long QueryValueInfoA(Key key, std::string_view ansiName, uint32_t& type, uint32_t& size) override;
  long QueryValueA(Key key, std::string_view ansiName, uint32_t& type,
                   std::string& buffer) override;
  long QueryValueW(Key key, std::u16string_view name, std::u16string& buffer) override;
  // One wide read where the name and the text are ASCII; the two calls otherwise.
  TextValue QueryTextValue(Key key, std::string_view ansiName) override;
  long CloseKey(Key key) override;
};

}  // namespace qvx::win32
