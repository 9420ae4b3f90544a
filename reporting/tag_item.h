// Writing one tag onto one item: the user property, then what the settings
// tie to it (dates from the project or activity, an entry in Categories).
//
//   Actions::TagProjectToItem(s, item, "ProjectValue", "Alpha", true);
//
// An item that has gone or refuses the property is passed over: the lookup
// and creation of the property, the write of Categories and the Save are
// made with failures ignored. Other failures are reported under
// "Actions.TagProjectToItem".
#pragma once

#include <string_view>

#include "core/object.h"

namespace qvx {
class AddinState;
}

namespace qvx::Actions {

// Puts strValue into the user property strProperty (a text property is
// created if the item has none), applies the dates and the category, and
// saves when blnSave. True unless a failure was reported.
bool TagProjectToItem(AddinState& s, const Object& objItem, std::string_view strProperty,
                      std::string_view strValue, bool blnSave) noexcept;

// True for "Field1Value" to "Field8Value", case included. Field9Value and
// Field10Value count with project and activity for categories.
bool IsCustomFieldProperty(std::string_view strProperty) noexcept;

}  // namespace qvx::Actions
