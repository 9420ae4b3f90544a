// The callbacks of the ribbon's drop-downs: rows, labels, the selected row,
// and the user's choice.
//
// Every drop-down shows its list and then one blank row, so the count is the
// list's plus one, an unknown value selects the blank row, and choosing the
// blank row writes "". A bare id (cboProject, cboTask, cboField1 ...) is an
// inspector's and reads its pools through the control's Context; a suffixed
// id is the explorer's and reads the one explorer value set. The activity
// list is the catalogue's entry of the current project.
//
// A choice writes the copy and tags the selection; only a project choice
// invalidates (the activity list changes with it).
//
//   GetItemCount(s, control);                 // 1 for an empty list
//   OnActionDropDown(s, control, "", 2);      // the third row
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/variant.h"

namespace qvx {

class AddinState;

// No trap: a failure goes to the host.
int16_t GetItemCount(AddinState& s, const Variant& control);
// Trap "Addin.GetItemLabel"; "" after it.
std::string GetItemLabel(AddinState& s, const Variant& control, int16_t index) noexcept;
// Trap "Addin.GetSelectedItemIndex"; 0 after it.
int16_t GetSelectedItemIndex(AddinState& s, const Variant& control) noexcept;
// Trap "Addin.OnActionDropDown". Only the index counts.
void OnActionDropDown(AddinState& s, const Variant& control, std::string_view selectedId,
                      int16_t selectedIndex) noexcept;

}  // namespace qvx
