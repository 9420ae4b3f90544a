// The rules an item must pass before it is handed over for reporting, also
// used by the automatic report of a completed task.
//
//   if (IsPrivateAllowed(s, item) && IsRecurringAllowed(s, item) &&
//       AllMandatoryFieldsFilled(s, item).empty()) { ... acceptable ... }
//
// IsPrivateAllowed and IsRecurringAllowed have no trap of their own: an item
// that has gone or lacks the property (a mail item has no IsRecurring) fails
// towards the caller, whose trap ends the whole validation.
#pragma once

#include <string>

#include "core/object.h"

namespace qvx {

class AddinState;

// False only for a private item (Sensitivity 2) while AllowPrivate is off.
bool IsPrivateAllowed(AddinState& s, const Object& objItem);

// False only for a recurring item (IsRecurring True) while AllowRecurring is
// off: a whole series and its occurrences alike.
bool IsRecurringAllowed(AddinState& s, const Object& objItem);

// "" when every mandatory field has a value (an empty project, activity or
// custom list value may be stood in for by its default, which is not written
// on the item); otherwise one line per missing field, joined by CR LF:
//   "\t- Project field is mandatory for reporting!"   (project, activity)
//   "\t- Custom Field 5 is mandatory for reporting!"  (the ten custom fields)
// The labels are the titles and names of the settings; a custom name that
// trims to nothing reads "Custom Field N". A failure is reported under
// "Main.AllMandatoryFieldsFilled" and gives the lines found so far.
std::string AllMandatoryFieldsFilled(AddinState& s, const Object& objItem) noexcept;

}  // namespace qvx
