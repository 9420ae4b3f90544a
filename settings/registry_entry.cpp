#include "settings/registry_entry.h"

#include "core/text.h"
#include "core/trap.h"
#include "state/addin_state.h"

namespace qvx::modRegistryEntry {
namespace {

using platform::Hive;
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

}  // namespace

void SaveRegistrySetting(AddinState& s, std::string_view AppName, std::string_view Section,
                         std::string_view Key, std::string_view Setting) {
  CheckNames(AppName, Key);
  RegistryApi& registry = s.registry();
  // The key closes itself on every way out, a raised failure included.
  const auto [created, key] = registry.Create(Hive::CurrentUser, KeyPath(AppName, Section));
  if (created != platform::kErrorSuccess) {
    Raise(WithCode(static_cast<uint32_t>(created)), "Could not open/create registry section");
  }
  // The name is tested trimmed but written as given.
  const long set = registry.SetStringValue(key.get(), Utf8ToUtf16(Key), Utf8ToUtf16(Setting));
  if (set != platform::kErrorSuccess) {
    Raise(WithCode(static_cast<uint32_t>(set)), "Could not set key value");
  }
}

std::string GetRegistrySetting(AddinState& s, std::string_view AppName, std::string_view Section,
                               std::string_view Key, std::string_view Default) {
  CheckNames(AppName, Key);
  RegistryApi& registry = s.registry();
  auto [open, key] =
      registry.Open(Hive::CurrentUser, KeyPath(AppName, Section), platform::kKeyRead);
  if (open == platform::kErrorFileNotFound) return std::string(Default);
  if (open != platform::kErrorSuccess) {
    Raise(WithCode(static_cast<uint32_t>(open)), "Could not open registry section");
  }
  RegistryApi::TextValue value = registry.QueryTextValue(key.get(), Key);
  if (value.info != platform::kErrorSuccess) {
    // An absent value: the key handle stays open on this one path, as it
    // always has; the store must not start closing it behind the caller.
    [[maybe_unused]] const RegistryApi::Key leftOpen = key.Detach();
    return std::string(Default);
  }
  if (value.type != platform::kRegSz) Raise(WithCode(value.type), "Registry data not a string");
  if (value.size == 0) return {};
  // The ANSI size counts a terminator: the text is size - 1 characters.
  if (value.query != platform::kErrorSuccess) return std::string(Default);
  return std::move(value.text);
}

}  // namespace qvx::modRegistryEntry
