#include "settings/local_settings.h"

#include <string>
#include <string_view>

#include "core/trap.h"
#include "core/variant.h"
#include "settings/registry_entry.h"
#include "state/addin_state.h"

namespace qvx::modLocalSettings {
namespace {

constexpr std::string_view kApp = "QVX";

// The value-name stem of the selected bar, or empty for an unknown selector.
std::string_view Stem(int16_t selector) {
  switch (selector) {
    case 0:
      return "MainTB";
    case 1:
      return "CustomTB";
    default:
      return {};
  }
}

void SaveOne(AddinState& s, std::string_view stem, const Object& bar, std::string_view property) {
  IgnoreFailure(s.err, [&] {
    const int32_t value = bar.Get(property).ToLong();
    modRegistryEntry::SaveRegistrySetting(s, kApp, "", std::string(stem) + std::string(property),
                                          std::to_string(value));
  });
}

void LoadOne(AddinState& s, std::string_view stem, const Object& bar, std::string_view property) {
  IgnoreFailure(s.err, [&] {
    const std::string text = modRegistryEntry::GetRegistrySetting(
        s, kApp, "", std::string(stem) + std::string(property), "");
    bar.Put(property, Variant(Variant(text).ToLong()));
  });
}

}  // namespace

void SaveToolbarPosition(AddinState& s, int16_t Selector, const Object& Bar) {
  const std::string_view stem = Stem(Selector);
  if (!stem.empty()) {
    SaveOne(s, stem, Bar, "Top");
    SaveOne(s, stem, Bar, "Left");
    SaveOne(s, stem, Bar, "Position");
    SaveOne(s, stem, Bar, "RowIndex");
  }
  s.err.Clear();
}

void LoadToolbarPosition(AddinState& s, int16_t Selector, const Object& Bar) {
  const std::string_view stem = Stem(Selector);
  if (!stem.empty()) {
    // Not the saving order: position and row come before the coordinates.
    LoadOne(s, stem, Bar, "Position");
    LoadOne(s, stem, Bar, "RowIndex");
    LoadOne(s, stem, Bar, "Top");
    LoadOne(s, stem, Bar, "Left");
  }
  s.err.Clear();
}

}  // namespace qvx::modLocalSettings
