#include "reporting/tag_selection.h"

#include <string>

#include "core/absence.h"
#include "core/variant.h"
#include "reporting/tag_item.h"
#include "state/addin_state.h"

namespace qvx::Actions {
namespace {

// The one selected item, tagged only while it is still the item the caller
// noted. False when the selection has moved on.
bool TagSingleSelected(AddinState& s, const Object& selection, std::string_view strProperty,
                       std::string_view strValue, std::string_view strEntryID) {
  Object item;
  IgnoreFailure(s.err,
                [&] { item = ObjectOrNothing(selection.Call("Item", {Variant(int32_t{1})})); });
  if (item) {
    std::string entryId;
    // An item whose identity can't be read any more has gone: leave it alone.
    const bool read = IgnoreFailure(s.err, [&] { entryId = item.Get("EntryID").ToText(); });
    s.err.Clear();
    if (!read || entryId != strEntryID) return false;
  }
  s.err.Clear();
  TagProjectToItem(s, item, strProperty, strValue, true);
  return true;
}

}  // namespace

bool GetCurrentSelectedItem(AddinState& s, std::string_view strProperty, std::string_view strValue,
                            std::string_view strEntryID) noexcept {
  return TrappedResult<bool>(s, "Actions.GetCurrentSelectedItem", [&](Line& line, bool& result) {
    line = 10;
    Object window;
    IgnoreFailure(s.err, [&] { window = ObjectOrNothing(s.main.objOutlook.Get("ActiveWindow")); });
    s.err.Clear();
    if (window.IsNothing()) return;
    line = 20;
    const std::string kind = window.TypeName();
    if (kind == "Inspector") {
      line = 30;
      Object item;
      IgnoreFailure(s.err, [&] {
        item =
            ObjectOrNothing(s.main.objOutlook.Get("ActiveInspector").ToObject().Get("CurrentItem"));
      });
      s.err.Clear();
      line = 40;
      if (item) TagProjectToItem(s, item, strProperty, strValue, true);
    } else if (kind == "Explorer") {
      line = 50;
      const Object selection =
          s.main.objOutlook.Get("ActiveExplorer").ToObject().Get("Selection").ToObject();
      line = 60;
      const int32_t count = selection.Get("Count").ToLong();
      if (count == 1) {
        line = 70;
        if (!TagSingleSelected(s, selection, strProperty, strValue, strEntryID)) return;
      } else if (count > 1) {
        line = 80;
        for (const Variant& each : selection.Enumerate()) {
          line = 90;
          // Host events and window messages may run here, a selection change among them.
          s.system().DoEvents();
          line = 100;
          TagProjectToItem(s, ObjectOrNothing(each), strProperty, strValue, true);
        }
      }
    }
    line = 110;
    result = true;
  });
}

}  // namespace qvx::Actions
