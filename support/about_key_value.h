// The about box's registry look-up of the system information tool: one text
// value read from any hive, the key opened as the about box always has
// (RegOpenKeyExA, access 0x2003F) and closed on every way out.
//
//   std::string path;
//   if (fAbout::GetKeyValue(registry, platform::Hive::LocalMachine,
//                           "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", "PATH", path)) {
//     ...  // start `path`
//   }
//
// The text is cut at its first terminator.
#pragma once

#include <string>
#include <string_view>

#include "platform/registry_api.h"

namespace qvx::fAbout {

// The buffer handed to the query, in bytes; a longer value is no value.
inline constexpr size_t kKeyValueBufferSize = 1024;

// True and `Value` set when the key opens and the value is read; otherwise
// false, with `Value` emptied when the key does not open and left as it was
// when the value cannot be read.
bool GetKeyValue(platform::RegistryApi& registry, platform::Hive Root, std::string_view KeyName,
                 std::string_view ValueName, std::string& Value);

}  // namespace qvx::fAbout
