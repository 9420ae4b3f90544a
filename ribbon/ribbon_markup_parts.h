// Fragments that the inspector and the explorer documents share.
//
// Every drop-down has one width (sizeString of 20 letters) and one set of
// callbacks; only the id and whether it binds its own visibility differ.
//
//   DropDownMarkup("cboProject", "Cal", true);   // the calendar explorer's project drop-down
//   CustomFieldDropDownMarkup(2, "");             // the inspector's cboField2
#pragma once

#include <string>
#include <string_view>

namespace qvx {

// The project or activity drop-down `stem` + `suffix`; with `boundVisible`
// it asks GetVisible whether it shows.
std::string DropDownMarkup(std::string_view stem, std::string_view suffix, bool boundVisible);

// The drop-down of custom field `field` (1 to 4) with `suffix` behind its id.
std::string CustomFieldDropDownMarkup(int field, std::string_view suffix);

}  // namespace qvx
