// The registry calls of the settings store, shaped as the Win32 calls they
// stand for (all under HKEY_CURRENT_USER). Results are Win32 error codes:
// 0 success, 2 not found. The POSIX side keeps a file of typed values.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace qvx::platform {

inline constexpr uint32_t kRegSz = 1;
inline constexpr uint32_t kRegBinary = 3;
inline constexpr uint32_t kRegDword = 4;
inline constexpr long kErrorSuccess = 0;
inline constexpr long kErrorFileNotFound = 2;
inline constexpr long kErrorAccessDenied = 5;
inline constexpr long kErrorInvalidHandle = 6;
inline constexpr long kErrorMoreData = 234;
inline constexpr uint32_t kKeyRead = 0x20019;

class RegistryApi {
 public:
  using Key = uintptr_t;
  virtual ~RegistryApi() = default;

  // RegCreateKeyW(HKEY_CURRENT_USER, subKey): opens or creates the key.
  virtual long CreateKey(std::u16string_view subKey, Key& key) = 0;
  // RegSetValueExW with REG_SZ and a byte count of twice the length (no terminator).
  virtual long SetStringValue(Key key, std::u16string_view name, std::u16string_view data) = 0;
  // RegOpenKeyExW(HKEY_CURRENT_USER, subKey, 0, access).
  virtual long OpenKey(std::u16string_view subKey, uint32_t access, Key& key) = 0;
  // RegQueryValueExA without a buffer: the value's type and its byte size as
  // the ANSI call reports it (for a string: characters plus a terminator).
  virtual long QueryValueInfoA(Key key, std::string_view ansiName, uint32_t& type,
                               uint32_t& size) = 0;
  // RegQueryValueExW into `buffer`, whose size in bytes is 2 * buffer.size().
  virtual long QueryValueW(Key key, std::u16string_view name, std::u16string& buffer) = 0;
  virtual long CloseKey(Key key) = 0;
};

}  // namespace qvx::platform
