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

}  // namespace

Variant GetRibbonValueStandardTB(AddinState& s, const Object& inspector,
                                 std::string_view name) noexcept {
  return TrappedResult<Variant>(s, "Addin.GetRibbonValueStandardTB",
                                [&](Line& line, Variant& result) {
                                  line = 10;
                                  if (const InspectorRibbonPools* pools = PoolsOf(s, inspector)) {
                                    line = 20;
                                    result = pools->standard.GetRibbonValueFromPool(name);
                                  }
                                });
}

Variant GetRibbonValueCustomTB(AddinState& s, const Object& inspector,
                               std::string_view name) noexcept {
  return TrappedResult<Variant>(s, "Addin.GetRibbonValueCustomTB",
                                [&](Line& line, Variant& result) {
                                  line = 10;
                                  if (const InspectorRibbonPools* pools = PoolsOf(s, inspector)) {
                                    line = 20;
                                    result = pools->custom.GetRibbonValueFromPool(name);
                                  }
                                });
}

void SetInspectorRibbonValueStandardTB(AddinState& s, const Object& inspector,
                                       std::string_view name, const Variant& value) noexcept {
  Trapped(s, "Addin.SetInspectorRibbonValueStandardTB", [&](Line& line) {
    line = 10;
    if (InspectorRibbonPools* pools = PoolsOf(s, inspector)) {
      line = 20;
      pools->standard.SetVariableValue(name, value);
    }
  });
}

void SetInspectorRibbonValueCustomTB(AddinState& s, const Object& inspector, std::string_view name,
                                     const Variant& value) noexcept {
  Trapped(s, "Addin.SetInspectorRibbonValueCustomTB", [&](Line& line) {
    line = 10;
    if (InspectorRibbonPools* pools = PoolsOf(s, inspector)) {
      line = 20;
      pools->custom.SetVariableValue(name, value);
    }
  });
}

}  // namespace qvx
