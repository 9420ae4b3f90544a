// Tests of an appointment's occurrence and of the host's active window.
#include "state/addin_state.h"
#include "support/host_items.h"

namespace qvx {

bool IsRecurrenceAppointmentOccurence(AddinState& s, const Object& item) noexcept {
  return TrappedResult<bool>(s, "IsRecurrenceAppointmentOccurence", [&](Line& line, bool& result) {
    line = 10;
    if (item.IsNothing() || item.TypeName() != "AppointmentItem") return;
    line = 20;
    if (!item.Get("IsRecurring").ToBoolean()) return;
    line = 30;
    // State 1 is the master of the series: only its occurrences and exceptions count.
    result = item.Get("RecurrenceState").ToLong() != 1;
  });
}

bool IsActiveWindowOfInspector(AddinState& s) noexcept {
  return TrappedResult<bool>(s, "OOM.IsActiveWindowOfInspector", [&](Line& line, bool& result) {
    line = 10;
    Object window;
    IgnoreFailure(s.err, [&] {
      const Variant active = s.main.objOutlook.Get("ActiveWindow");
      if (active.IsObject()) window = active.ToObject();
    });
    line = 20;
    result = window && window.TypeName() == "Inspector";
  });
}

}  // namespace qvx
