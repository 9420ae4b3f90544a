// The tagging commands of the ribbon: a project, an activity or a custom
// list value chosen for the current item or selection.
//
// Each notes the EntryID of the item in front of the user (the first of a
// selection) and tags through Actions::GetCurrentSelectedItem with it, so a
// single item that is no longer selected is left alone.
//
//   Main::TagProjectValueToItem(s, "Alpha");
//   Main::TagCustomFieldValueToItem(s, 2, "Berlin");
#pragma once

#include <cstdint>
#include <string_view>

namespace qvx {
class AddinState;
}

namespace qvx::Main {

// Writes the project. An activity that doesn't belong to the new project is
// cleared first (and SELECTED_ACTIVITY_VALUE emptied); an empty project
// clears the activity as well. blnTaggingInProgress is set meanwhile; a
// reported failure leaves it set. Trap "Main.TagProjectValueToItem".
void TagProjectValueToItem(AddinState& s, std::string_view strValue) noexcept;

// Writes the activity, if an item was found. Trap "Main.TagTaskValueToItem".
void TagTaskValueToItem(AddinState& s, std::string_view strValue) noexcept;

// Writes Field1Value to Field4Value for intField 1 to 4, if an item was
// found; any other number does nothing. Trap "Main.TagCustomFieldValueToItem".
void TagCustomFieldValueToItem(AddinState& s, int16_t intField, std::string_view strValue) noexcept;

}  // namespace qvx::Main
