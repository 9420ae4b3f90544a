// The callbacks that show what the command bars decided: labels, enabled
// states, visibility of controls and groups.
//
// They decide nothing: the explorer's bars copy their state into the one
// explorer value set, an inspector's bars into that inspector's pools, and
// these read the copy the id names (a bare id: the inspector of the
// control's Context; a suffixed id: the explorer set). Ids are tested whole,
// family by family, in a fixed order; an id outside the known set gets the
// fall-through of its callback ("" or false, or for a group a message box).
//
//   getLabel(s, control);            // "Publish" for cmdReportCal, say
//   GetGroupVisibility(s, control);  // KRPExplorerTask: GROUP_TASK_VISIBLE
#pragma once

#include <string>

#include "core/variant.h"

namespace qvx {

class AddinState;

// Trap "Addin.getLabel"; "" after it.
std::string getLabel(AddinState& s, const Variant& control) noexcept;
// Trap "Addin.GetEnabled"; false after it.
bool GetEnabled(AddinState& s, const Variant& control) noexcept;

// No trap of their own: a failure goes to the host.
bool GetVisible(AddinState& s, const Variant& control);
bool GetGroupVisibility(AddinState& s, const Variant& control);
bool ShowCustomFields(AddinState& s, const Variant& control);
bool GetReportButtonVisible(AddinState& s, const Variant& control);
bool GetWithdrawButtonVisible(AddinState& s, const Variant& control);
bool GetReportButtonVisibleInspector(AddinState& s, const Variant& control);
bool GetWithdrawButtonVisibleInspector(AddinState& s, const Variant& control);
// Custom field 1 to 4: the explorer's flag, or the inspector's pool value.
bool GetCustomFieldVisibility(AddinState& s, int field);
bool GetCustomFieldVisibilityInspector(AddinState& s, const Variant& control, int field);

}  // namespace qvx
