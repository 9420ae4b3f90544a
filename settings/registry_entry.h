// The settings store: one named text value under the add-in's registry key.
//
// Values live under HKEY_CURRENT_USER, key "Software\Zenbrook\<app>" plus
// "\<section>" when the trimmed section is not empty, always as REG_SZ. The
// two operations RAISE their failures (Failure on the object error base) to
// the caller, whose own trap reports them; they never report themselves.
//
//   modRegistryEntry::SaveRegistrySetting(s, "QVX", "", "DBChoice", "0");
//   std::string v = modRegistryEntry::GetRegistrySetting(s, "QVX", "", "DBChoice", "0");
//
// Raised numbers (description in quotes):
//   base + 1000            "AppName may not be empty"
//   base + 1002            "Key may not be empty"
//   base + 2000 + result   "Could not open/create registry section" (write)
//   base + 2000 + result   "Could not set key value"
//   base + 2000 + result   "Could not open registry section" (read, other than absent)
//   base + 2000 + type     "Registry data not a string"
// An absent key or value reads as the default; a value written empty reads empty.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/failure.h"

namespace qvx {

class AddinState;

namespace modRegistryEntry {

inline constexpr int32_t kEmptyAppName = err::kObjectErrorBase + 1000;
inline constexpr int32_t kEmptyKey = err::kObjectErrorBase + 1002;
inline constexpr int32_t kRegistryErrorBase = err::kObjectErrorBase + 2000;

// Writes one value (RegCreateKeyW, RegSetValueExW). Raises on failure.
void SaveRegistrySetting(AddinState& s, std::string_view AppName, std::string_view Section,
                         std::string_view Key, std::string_view Setting);

// Reads one value; `Default` when the key or the value is absent. Raises on failure.
std::string GetRegistrySetting(AddinState& s, std::string_view AppName, std::string_view Section,
                               std::string_view Key, std::string_view Default);

}  // namespace modRegistryEntry
}  // namespace qvx
