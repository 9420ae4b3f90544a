#include "ribbon/inspector_pools.h"

#include "core/text.h"
#include "state/addin_state.h"

namespace qvx {
namespace {

// The pools of the inspector's item, or nullptr: steps 1 to 3 of every
// lookup, with a failure to read the item's id taken as no id.
InspectorRibbonPools* PoolsOf(AddinState& s, const Object& inspector) {
  if (inspector.IsNothing()) return nullptr;
  std::string entryId;
  IgnoreFailure(s.err, [&] {
    const std::string id = inspector.Get("CurrentItem").ToObject().Get("EntryID").ToText();
    entryId = Trim(id);
  });
  s.err.Clear();
  if (entryId.empty() || !s.main.objInspectorsClient) return nullptr;
  return s.ribbon.FindInspector(entryId);
}

// The finder of one of the two pools (`member`) of the inspector's item, at
// statement 10, reading it at statement 20.
template <class Pool>
auto PoolOf(AddinState& s, const Object& inspector, Pool InspectorRibbonPools::*member) {
  return [&s, &inspector, member](Line& line) -> Pool* {
    line = 10;
    InspectorRibbonPools* pools = PoolsOf(s, inspector);
    if (!pools) return nullptr;
    line = 20;
    return &(pools->*member);
  };
}

}  // namespace

Variant GetRibbonValueStandardTB(AddinState& s, const Object& inspector,
                                 std::string_view name) noexcept {
  return ReadPooledValue(s, "Addin.GetRibbonValueStandardTB", name,
                         PoolOf(s, inspector, &InspectorRibbonPools::standard));
}

Variant GetRibbonValueCustomTB(AddinState& s, const Object& inspector,
                               std::string_view name) noexcept {
  return ReadPooledValue(s, "Addin.GetRibbonValueCustomTB", name,
                         PoolOf(s, inspector, &InspectorRibbonPools::custom));
}

void SetInspectorRibbonValueStandardTB(AddinState& s, const Object& inspector,
                                       std::string_view name, const Variant& value) noexcept {
  WritePooledValue(s, "Addin.SetInspectorRibbonValueStandardTB", name, value,
                   PoolOf(s, inspector, &InspectorRibbonPools::standard));
}

void SetInspectorRibbonValueCustomTB(AddinState& s, const Object& inspector, std::string_view name,
                                     const Variant& value) noexcept {
  WritePooledValue(s, "Addin.SetInspectorRibbonValueCustomTB", name, value,
                   PoolOf(s, inspector, &InspectorRibbonPools::custom));
}

}  // namespace qvx
