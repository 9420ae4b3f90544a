#include "reporting/item_filters.h"

#include <string>

#include "core/failure.h"
#include "core/host_constants.h"
#include "core/text.h"
#include "core/variant.h"
#include "schema/item_schema.h"
#include "settings/my_settings.h"
#include "state/addin_state.h"

namespace qvx {
bool IsSupportMessageClass(AddinState& s, const Object& objItem) noexcept {
  return TrappedResult<bool>(s, "Main.IsSupportMessageClass", [&](Line& line, bool& result) {
    line = 10;
    std::string messageClass;
    // An item that has gone, or an object that is no item, is simply not ours.
    IgnoreFailure(s.err, [&] { messageClass = UCase(objItem.Get("MessageClass").ToText()); });
    s.err.Clear();
    line = 20;
    result = InStr(messageClass, schema::kClassTask) > 0 ||
             InStr(messageClass, schema::kClassAppointment) > 0 ||
             InStr(messageClass, schema::kClassAppointmentException) > 0;
  });
}

bool IsDefaultFolder(AddinState& s, const Object& objFolder) noexcept {
  return TrappedResult<bool>(s, "Main.IsDefaultFolder", [&](Line& line, bool& result) {
    line = 10;
    const cMySettings& settings = s.main.Settings();
    bool restricted = false;
    Object defaultFolder;
    if (objFolder.Get("DefaultItemType").ToLong() == host::olAppointmentItem) {
      line = 20;
      if (settings.UseDefaultCalendarFolderOnly != 0) {
        restricted = true;
        defaultFolder =
            s.main.objNameSpace.Call("GetDefaultFolder", {Variant(host::olFolderCalendar)})
                .ToObject();
      }
    } else {
      line = 30;
      if (settings.UseDefaultTaskFolderOnly != 0) {
        restricted = true;
        defaultFolder =
            s.main.objNameSpace.Call("GetDefaultFolder", {Variant(host::olFolderTasks)}).ToObject();
      }
    }
    line = 40;
    if (!restricted) {
      result = true;
      return;
    }
    line = 50;
    result = defaultFolder.Get("EntryID").ToText() == objFolder.Get("EntryID").ToText();
  });
}

bool AreAllCustomFieldsActive(AddinState& s) noexcept {
  return TrappedResult<bool>(s, "Main.AreAllCustomFieldsActive", [&](Line& line, bool& result) {
    line = 10;
    const cMySettings& c = s.main.Settings();
    line = 20;
    result = c.CustomList1Active != 0 || c.CustomList2Active != 0 || c.CustomList3Active != 0 ||
             c.CustomList4Active != 0 || c.CustomField5Active != 0 || c.CustomField6Active != 0 ||
             c.CustomField7Active != 0 || c.CustomField8Active != 0 || c.CustomField9Active != 0 ||
             c.CustomField10Active != 0;
  });
}

}  // namespace qvx
