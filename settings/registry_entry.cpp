#include "settings/registry_entry.h"

#include <optional>

#include "core/text.h"
#include "core/trap.h"
#include "state/addin_state.h"

namespace qvx::modRegistryEntry {
namespace {

using platform::RegistryApi;

constexpr std::string_view kSource = "QVXClient";

[[noreturn]] void Raise(int32_t number, std::string_view description) {
  throw Failure(number, std::string(kSource), std::string(description));
}

// The platform's result (or a value's type) added into the error number.
int32_t WithCode(uint32_t code) {
  return static_cast<int32_t>(static_cast<uint32_t>(kRegistryErrorBase) + code);
}

void CheckNames(std::string_view appName, std::string_view key) {
  if (Trim(appName).empty()) Raise(kEmptyAppName, "AppName may not be empty");
  if (Trim(key).empty()) Raise(kEmptyKey, "Key may not be empty");
}

std::u16string KeyPath(std::string_view appName, std::string_view section) {
  std::string path = "Software\\Zenbrook\\";
  path += Trim(appName);
  if (!Trim(section).empty()) {
    path += '\\';
    path += Trim(section);
  }
  return Utf8ToUtf16(path);
}

// Closes the key with failures ignored, then raises what the body kept.
void CleanUp(RegistryApi& registry, bool opened, RegistryApi::Key key,
             const std::optional<Failure>& kept) {
  if (opened) {
    try {
      registry.CloseKey(key);
    } catch (...) {
      // A failed close changes nothing for the caller.
    }
  }
  if (kept) throw *kept;
}

}  // namespace

void SaveRegistrySetting(AddinState& s, std::string_view AppName, std::string_view Section,
                         std::string_view Key, std::string_view Setting) {
  RegistryApi& registry = s.registry();
  RegistryApi::Key key = 0;
  bool opened = false;
  std::optional<Failure> kept;
  try {
    CheckNames(AppName, Key);
    const long created = registry.CreateKey(KeyPath(AppName, Section), key);
    if (created != platform::kErrorSuccess) {
      Raise(WithCode(static_cast<uint32_t>(created)), "Could not open/create registry section");
    }
    opened = true;
    // The name is tested trimmed but written as given.
    const long set = registry.SetStringValue(key, Utf8ToUtf16(Key), Utf8ToUtf16(Setting));
    if (set != platform::kErrorSuccess) {
      Raise(WithCode(static_cast<uint32_t>(set)), "Could not set key value");
    }
  } catch (...) {
    kept = CurrentFailure();
  }
  CleanUp(registry, opened, key, kept);
}

std::string GetRegistrySetting(AddinState& s, std::string_view AppName, std::string_view Section,
                               std::string_view Key, std::string_view Default) {
  RegistryApi& registry = s.registry();
  RegistryApi::Key key = 0;
  bool opened = false;
  std::optional<Failure> kept;
  std::string result;
  try {
    CheckNames(AppName, Key);
    const long open = registry.OpenKey(KeyPath(AppName, Section), platform::kKeyRead, key);
    if (open == platform::kErrorFileNotFound) return std::string(Default);
    if (open != platform::kErrorSuccess) {
      Raise(WithCode(static_cast<uint32_t>(open)), "Could not open registry section");
    }
    opened = true;
    uint32_t type = 0;
    uint32_t size = 0;
    // An absent value: the key handle stays open on this one path, as it
    // always has; the store must not start closing it behind the caller.
    if (registry.QueryValueInfoA(key, Key, type, size) != platform::kErrorSuccess) {
      return std::string(Default);
    }
    if (type != platform::kRegSz) Raise(WithCode(type), "Registry data not a string");
    if (size > 0) {
      // The ANSI size counts a terminator: the text is size - 1 characters.
      std::u16string buffer(size, u'\0');
      if (registry.QueryValueW(key, Utf8ToUtf16(Key), buffer) != platform::kErrorSuccess) {
        result = std::string(Default);
      } else {
        buffer.resize(size - 1);
        result = Utf16ToUtf8(buffer);
      }
    }
  } catch (...) {
    kept = CurrentFailure();
  }
  CleanUp(registry, opened, key, kept);
  return result;
}

}  // namespace qvx::modRegistryEntry
