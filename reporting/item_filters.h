// What the bars and the sinks ask before they work on an item or a folder:
// is the item of a class the add-in handles, may items of this folder be
// worked on, and is any custom field in use at all.
#pragma once

#include "core/object.h"

namespace qvx {

class AddinState;

// True if the upper-cased MessageClass contains "IPM.TASK", "IPM.APPOINTMENT"
// or "IPM.OLE.CLASS.{00061055-0000-0000-C000-000000000046}" (the exception of
// a recurring appointment). An item that cannot be read gives False, silently.
bool IsSupportMessageClass(AddinState& s, const Object& objItem) noexcept;

// True unless the settings restrict work to the default folder of the
// folder's kind (UseDefaultCalendarFolderOnly for a folder of appointments,
// UseDefaultTaskFolderOnly for any other) and objFolder isn't that folder, by
// EntryID. A failure is reported under "Main.IsDefaultFolder" and gives False.
bool IsDefaultFolder(AddinState& s, const Object& objFolder) noexcept;

// Despite the name: True as soon as any one of CustomList1Active to
// CustomList4Active and CustomField5Active to CustomField10Active is set, so
// that a custom fields bar is wanted. Reported under
// "Main.AreAllCustomFieldsActive" (False) without a settings record.
bool AreAllCustomFieldsActive(AddinState& s) noexcept;

}  // namespace qvx
