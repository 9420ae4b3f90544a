// Default values of the tagged fields, from the settings record. The
// mandatory test of the report pipeline takes them in place of an empty
// property. Each is "" unless its switch is on (and, for a custom list, the
// list is active), and each reports a failure under its own name and gives "".
//
//   settings.EnableDefaultValueForProjectTask = -1;
//   settings.DefaultValueForProject = "Internal";
//   GetDefaultProjectValue(s) == "Internal"
#pragma once

#include <string>

#include "state/addin_state.h"

namespace qvx {

std::string GetDefaultProjectValue(AddinState& s);
std::string GetDefaultActivityValue(AddinState& s);
std::string GetDefaultField1Value(AddinState& s);
std::string GetDefaultField2Value(AddinState& s);
std::string GetDefaultField3Value(AddinState& s);
std::string GetDefaultField4Value(AddinState& s);

}  // namespace qvx
