#include "support/about_form.h"

namespace qvx {

bool fAbout::GetKeyValue(platform::RegistryApi& registry, platform::Hive Root,
                         std::string_view KeyName, std::string_view ValueName, std::string& Value) {
  const auto [opened, key] = registry.OpenA(Root, KeyName, platform::kKeyAllAccessRead);
  if (opened != platform::kErrorSuccess) {
    Value.clear();
    return false;
  }
  std::string buffer(kKeyValueBufferSize, '\0');
  uint32_t type = 0;
  if (registry.QueryValueA(key.get(), ValueName, type, buffer) != platform::kErrorSuccess) {
    return false;
  }
  Value = buffer.substr(0, buffer.find('\0'));
  return true;
}

}  // namespace qvx
