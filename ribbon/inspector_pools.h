// The value pools of an inspector's toolbar objects, as the ribbon reaches
// them: by the inspector the host names as the control's Context.
//
// The inspector's item's EntryID finds its pools. No inspector, an item
// without an EntryID yet, a tear-down or an inspector without toolbar
// objects: a read answers Empty (false, or "") and a write does nothing.
// Each operation traps its failure under its label and then answers Empty.
//
//   GetRibbonValueStandardTB(s, inspector, "PROJECT_INSPECTOR_ENABLED").ToBoolean();
//   SetInspectorRibbonValueCustomTB(s, inspector, "SELECTED_INSPECTOR_CUSTOM_FIELD2_VALUE",
//                                   Variant("North"));
#pragma once

#include <string_view>

#include "core/object.h"
#include "core/variant.h"

namespace qvx {

class AddinState;

Variant GetRibbonValueStandardTB(AddinState& s, const Object& inspector,
                                 std::string_view name) noexcept;
Variant GetRibbonValueCustomTB(AddinState& s, const Object& inspector,
                               std::string_view name) noexcept;
void SetInspectorRibbonValueStandardTB(AddinState& s, const Object& inspector,
                                       std::string_view name, const Variant& value) noexcept;
void SetInspectorRibbonValueCustomTB(AddinState& s, const Object& inspector, std::string_view name,
                                     const Variant& value) noexcept;

}  // namespace qvx
