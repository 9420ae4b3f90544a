// The mail library wrapper: reading an item's tagged field from its MAPI
// named property, and sending a mail without the host's security prompt.
//
// The library is optional. It is known by its ProgIDs only and asks for the
// access key on every object it hands out. Without it every read goes through
// the host's object model (GetUserDefinedFieldValue), silently; an access key
// that the library refuses is told once per process, and reads then go
// through the host as well.
//
//   Variant id = GetFieldValueFromItem(s, item, "ReportedID", VarType::String);
//   bool reported = !Trim(id.ToText()).empty();
#pragma once

#include <string_view>

#include "core/variant.h"

namespace qvx {

class AddinState;

inline constexpr std::string_view kMapiUtilsProgId = "ZNBLib.ZNBMAPIUtils";
inline constexpr std::string_view kMailItemProgId = "ZNBLib.ZNBMailItem";
// The library's access key, given to every object it makes.
inline constexpr std::string_view kMailLibraryAuthKey = "ZNBQUORVIXMAPIKEY";

// Makes sure of s.support.mapiUtils. False once the access key was refused
// (the box "A library file is missing!" is shown that first time only).
// A library that cannot be created at all gives True with no object held:
// a quirk kept on purpose, so callers test the object.
bool InitMapiUtils(AddinState& s) noexcept;

// Ends the library's session and releases the object; the next read makes a
// new one. Part of the tear-down.
void CleanupMapiUtils(AddinState& s) noexcept;

// The value of the item's user field `strField`, typed by `type` (String,
// Date, Integer ...). Through the library: a date comes back in local time,
// a null value gives "" for String, stays null for Date, and gives 0 for any
// other type. Without the library, or for an item without the property, the
// host's reading with an empty default. Trap "ZNBLib.GetFieldValueFromItem".
Variant GetFieldValueFromItem(AddinState& s, const Object& item, std::string_view strField,
                              VarType type) noexcept;

// Sends a mail item through the library, or, when the library refused its
// key, shows it for the user to send; then presses Send/Receive. True if the
// library's Send went through. With no library at all nothing is sent and
// nothing shown (the InitMapiUtils quirk above). Failures are ignored.
bool SendEmailDirectly(AddinState& s, const Object& item) noexcept;

}  // namespace qvx
