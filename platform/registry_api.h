// The registry calls of the add-in, shaped as the Win32 calls they stand for.
// Results are Win32 error codes: 0 success, 2 not found. The POSIX side keeps
// a file of typed values per hive (docs/registry-file.md).
//
// Callers open keys through Create, Open and OpenA, which hand out keys that
// close themselves; the virtual calls below them are the platform's side.
//
//   auto [result, key] = registry.OpenA(Hive::LocalMachine, "SOFTWARE\\Vendor", kKeyAllAccessRead);
//   if (result != kErrorSuccess) return false;  // nothing to close
//   std::string data(1024, '\0');
//   uint32_t type = 0;
//   registry.QueryValueA(key.get(), "PATH", type, data);  // key closed on return
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/unique_any.h"

namespace qvx::platform {

inline constexpr uint32_t kRegSz = 1;
inline constexpr uint32_t kRegBinary = 3;
inline constexpr uint32_t kRegDword = 4;
inline constexpr long kErrorSuccess = 0;
inline constexpr long kErrorFileNotFound = 2;
inline constexpr long kErrorAccessDenied = 5;
inline constexpr long kErrorInvalidHandle = 6;
inline constexpr long kErrorMoreData = 234;
// KEY_READ.
inline constexpr uint32_t kKeyRead = 0x20019;
// KEY_READ | KEY_WRITE | KEY_CREATE_LINK: what the about box asks for.
inline constexpr uint32_t kKeyAllAccessRead = 0x2003F;

// The predefined root a key path is relative to.
enum class Hive { CurrentUser, LocalMachine };

class RegistryApi;

// Closes a key through the registry that opened it.
struct KeyCloser {
  RegistryApi* registry = nullptr;
  void operator()(uintptr_t key) const noexcept;
};
using UniqueKey = UniqueAny<uintptr_t, KeyCloser>;

// A result and the key it opened (empty unless the result is 0).
struct OpenedKey {
  long result = kErrorSuccess;
  UniqueKey key;
};

class RegistryApi {
 public:
  using Key = uintptr_t;
  virtual ~RegistryApi() = default;

  // RegCreateKeyW: opens or creates the key.
  OpenedKey Create(Hive hive, std::u16string_view subKey) {
    Key key = 0;
    const long result = CreateKey(hive, subKey, key);
    return Owned(result, key);
  }
  // RegOpenKeyExW(hive, subKey, 0, access).
  OpenedKey Open(Hive hive, std::u16string_view subKey, uint32_t access) {
    Key key = 0;
    const long result = OpenKey(hive, subKey, access, key);
    return Owned(result, key);
  }
  // RegOpenKeyExA(hive, subKey, 0, access); the path is UTF-8, the ANSI code
  // page only at the call itself.
  OpenedKey OpenA(Hive hive, std::string_view ansiSubKey, uint32_t access) {
    Key key = 0;
    const long result = OpenKeyA(hive, ansiSubKey, access, key);
    return Owned(result, key);
  }

  // RegSetValueExW with REG_SZ and a byte count of twice the length (no terminator).
  virtual long SetStringValue(Key key, std::u16string_view name, std::u16string_view data) = 0;
  // RegQueryValueExA without a buffer: the value's type and its byte size as
  // the ANSI call reports it (for a string: characters plus a terminator).
  virtual long QueryValueInfoA(Key key, std::string_view ansiName, uint32_t& type,
                               uint32_t& size) = 0;
  // RegQueryValueExA into `buffer`, whose size is the byte count handed over.
  // On success `buffer` holds the bytes written (a text with its terminator,
  // as UTF-8); 234 if it is too small.
  virtual long QueryValueA(Key key, std::string_view ansiName, uint32_t& type,
                           std::string& buffer) = 0;
  // RegQueryValueExW into `buffer`, whose size in bytes is 2 * buffer.size().
  virtual long QueryValueW(Key key, std::u16string_view name, std::u16string& buffer) = 0;
  // QueryValueW of a text value into a buffer of `units` UTF-16 units (the
  // size QueryValueInfoA reported), all but the last unit handed back in
  // `text` as UTF-8: a value shorter than that leaves NULs, a longer one
  // fails with 234. By default the wide call converted once; a store that
  // holds UTF-8 hands out its own text without the round trip through UTF-16.
  virtual long QueryValueUtf8(Key key, std::string_view name, uint32_t units, std::string& text);

  // A text value read as the settings store reads it: QueryValueInfoA, then,
  // for a REG_SZ of a nonzero size, QueryValueUtf8 of that size. `info` is
  // the first call's result, `query` the second's (0 when it did not run).
  // By default those two calls; a store where the size query fetches the
  // whole value anyway may read it once and answer both.
  struct TextValue {
    long info = kErrorSuccess;
    uint32_t type = 0;
    uint32_t size = 0;
    long query = kErrorSuccess;
    std::string text;
  };
  virtual TextValue QueryTextValue(Key key, std::string_view ansiName);

  // The platform's side of Create, Open, OpenA and of closing a key.
  virtual long CreateKey(Hive hive, std::u16string_view subKey, Key& key) = 0;
  virtual long OpenKey(Hive hive, std::u16string_view subKey, uint32_t access, Key& key) = 0;
  virtual long OpenKeyA(Hive hive, std::string_view ansiSubKey, uint32_t access, Key& key) = 0;
  virtual long CloseKey(Key key) = 0;

 private:
  OpenedKey Owned(long result, Key key) {
    return OpenedKey{result, UniqueKey(result == kErrorSuccess ? key : 0, KeyCloser{this})};
  }
};

inline void KeyCloser::operator()(uintptr_t key) const noexcept {
  try {
    registry->CloseKey(key);
  } catch (...) {
    // A failed close changes nothing for the caller.
  }
}

}  // namespace qvx::platform
