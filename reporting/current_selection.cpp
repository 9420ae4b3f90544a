#include "reporting/current_selection.h"

#include <string>

#include "core/absence.h"
#include "core/variant.h"
#include "state/addin_state.h"

namespace qvx::Main {
namespace {

// Each read may fail when the window or the item has gone meanwhile; a
// failure leaves the object Nothing (or the count 0), which the next step tests.
Object ActiveWindow(AddinState& s) {
  return QuietObject(s.err, [&] { return s.main.objOutlook.Get("ActiveWindow"); });
}

std::string TypeNameOf(AddinState& s, const Object& window) {
  return Quietly(s.err, [&] { return window.TypeName(); }).value_or(std::string());
}

Object ActiveSelection(AddinState& s) {
  return QuietObject(
      s.err, [&] { return s.main.objOutlook.Get("ActiveExplorer").ToObject().Get("Selection"); });
}

int32_t CountOf(AddinState& s, const Object& selection) {
  return Quietly(s.err, [&] { return selection.Get("Count").ToLong(); }).value_or(0);
}

Object FirstOf(AddinState& s, const Object& selection) {
  return QuietObject(s.err, [&] { return selection.Call("Item", {Variant(int32_t{1})}); });
}

}  // namespace

Object GetCurrentSelectedItem(AddinState& s, bool blnMultiple) noexcept {
  Object result;
  IgnoreFailure(s.err, [&] {
    const Object window = ActiveWindow(s);
    s.report.blnLastItemFromInspector = false;
    if (window.IsNothing()) return;
    const std::string kind = TypeNameOf(s, window);
    if (kind == "Explorer") {
      const Object selection = ActiveSelection(s);
      const int32_t count = CountOf(s, selection);
      if (count == 0) return;
      result = (count > 1 && blnMultiple) ? selection : FirstOf(s, selection);
    } else if (kind == "Inspector") {
      s.report.blnLastItemFromInspector = true;
      result = QuietObject(s.err, [&] {
        return s.main.objOutlook.Get("ActiveInspector").ToObject().Get("CurrentItem");
      });
    }
  });
  s.err.Clear();
  return result;
}

Object GetCurrentSelectedItemExplorer(AddinState& s) noexcept {
  Object result;
  IgnoreFailure(s.err, [&] {
    const Object window = ActiveWindow(s);
    if (window.IsNothing() || TypeNameOf(s, window) != "Explorer") return;
    const Object selection = ActiveSelection(s);
    if (CountOf(s, selection) > 0) result = FirstOf(s, selection);
  });
  s.err.Clear();
  return result;
}

}  // namespace qvx::Main
