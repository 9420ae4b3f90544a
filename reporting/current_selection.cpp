#include "reporting/current_selection.h"

#include <string>

#include "core/variant.h"
#include "state/addin_state.h"

namespace qvx::Main {
namespace {

// Each read may fail when the window or the item has gone meanwhile; a
// failure leaves the object Nothing, which the next step tests.
Object ObjectOf(ErrorState& err, const Object& from, const char* member) {
  Object result;
  IgnoreFailure(err, [&] { result = from.Get(member).ToObject(); });
  return result;
}

std::string TypeNameOf(ErrorState& err, const Object& object) {
  std::string name;
  IgnoreFailure(err, [&] { name = object.TypeName(); });
  return name;
}

int32_t CountOf(ErrorState& err, const Object& selection) {
  int32_t count = 0;
  IgnoreFailure(err, [&] { count = selection.Get("Count").ToLong(); });
  return count;
}

Object FirstOf(ErrorState& err, const Object& selection) {
  Object item;
  IgnoreFailure(err, [&] { item = selection.Call("Item", {Variant(int32_t{1})}).ToObject(); });
  return item;
}

Object ActiveSelection(AddinState& s) {
  return ObjectOf(s.err, ObjectOf(s.err, s.main.objOutlook, "ActiveExplorer"), "Selection");
}

}  // namespace

Object GetCurrentSelectedItem(AddinState& s, bool blnMultiple) noexcept {
  Object result;
  IgnoreFailure(s.err, [&] {
    const Object window = ObjectOf(s.err, s.main.objOutlook, "ActiveWindow");
    s.report.blnLastItemFromInspector = false;
    if (window.IsNothing()) return;
    const std::string kind = TypeNameOf(s.err, window);
    if (kind == "Explorer") {
      const Object selection = ActiveSelection(s);
      const int32_t count = CountOf(s.err, selection);
      if (count == 0) return;
      result = (count > 1 && blnMultiple) ? selection : FirstOf(s.err, selection);
    } else if (kind == "Inspector") {
      s.report.blnLastItemFromInspector = true;
      result =
          ObjectOf(s.err, ObjectOf(s.err, s.main.objOutlook, "ActiveInspector"), "CurrentItem");
    }
  });
  s.err.Clear();
  return result;
}

Object GetCurrentSelectedItemExplorer(AddinState& s) noexcept {
  Object result;
  IgnoreFailure(s.err, [&] {
    const Object window = ObjectOf(s.err, s.main.objOutlook, "ActiveWindow");
    if (window.IsNothing() || TypeNameOf(s.err, window) != "Explorer") return;
    const Object selection = ActiveSelection(s);
    if (CountOf(s.err, selection) > 0) result = FirstOf(s.err, selection);
  });
  s.err.Clear();
  return result;
}

}  // namespace qvx::Main
