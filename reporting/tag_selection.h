// Tagging what the user has in front of him: the item of the active
// inspector, or the item or items selected in the active explorer.
//
//   Actions::GetCurrentSelectedItem(s, "ActivityValue", "Design", entryId);
//
// With one item selected, the item is tagged only if its EntryID is the one
// the caller noted: the selection may have moved since the caller looked (a
// bar showing a stale item, messages let through in between), and then
// nothing is written. With several selected, each is tagged and saved in
// turn, and pending messages are let through before each one, so that the
// host stays responsive; the selection taken at the start is worked to its
// end even if the user selects something else meanwhile.
#pragma once

#include <string_view>

namespace qvx {
class AddinState;
}

namespace qvx::Actions {

// Tags the inspector's item, or the explorer's selection, with strValue in
// strProperty, saving each item. True if a window was dealt with; False with
// no active window, or when the one selected item isn't strEntryID.
// Failures are reported under "Actions.GetCurrentSelectedItem".
bool GetCurrentSelectedItem(AddinState& s, std::string_view strProperty, std::string_view strValue,
                            std::string_view strEntryID) noexcept;

}  // namespace qvx::Actions
