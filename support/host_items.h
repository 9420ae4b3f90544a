// Reading the host's items and windows: typed user-defined fields, the
// user's name, and tests of occurrences and of the active window.
#pragma once

#include <string>
#include <string_view>

#include "core/variant.h"

namespace qvx {

class AddinState;

// The value of the item's user property `strField`, typed by `type`
// (Integer, Currency, Date, String or Boolean), with `defaultValue` where the
// table of each type uses it. An unreadable item reads as one without the
// property; a value that cannot be converted is reported
// ("GetUserDefinedFieldValue") and gives Empty.
Variant GetUserDefinedFieldValue(AddinState& s, const Object& item, std::string_view strField,
                                 VarType type, const Variant& defaultValue = Variant()) noexcept;

// The mailbox user's name, else the system's user name.
std::string GetCurrentUserName(AddinState& s) noexcept;
// From the name of the calendar's store: "Mailbox - Jane Doe" gives "Jane Doe";
// a name with "," or "@" and no " - " is taken whole; anything else gives "".
std::string GetUserNameFromMailbox(AddinState& s) noexcept;
// %USERNAME% by the shell object.
std::string GetWindowsUserName(AddinState& s) noexcept;

// True for an occurrence or exception of a recurring appointment, not its master.
bool IsRecurrenceAppointmentOccurence(AddinState& s, const Object& item) noexcept;
// True if the host's active window is an inspector.
bool IsActiveWindowOfInspector(AddinState& s) noexcept;

}  // namespace qvx
