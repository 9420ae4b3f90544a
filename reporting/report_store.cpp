#include "reporting/report_store.h"

#include "core/variant.h"
#include "reporting/current_selection.h"
#include "state/addin_state.h"

namespace qvx {
namespace {

Object Child(const Object& from, const char* member) {
  return from.Get(member).ToObject();
}

}  // namespace

std::string FindReportStore(AddinState& s, const Object& objFirst) noexcept {
  std::string store;
  IgnoreFailure(s.err, [&] {
    const Object objSingle = Main::GetCurrentSelectedItem(s, false);
    if (objSingle) {
      // A Selection's Parent is its explorer, which has no StoreID: a selection
      // of several falls through to the explorer's folder below.
      IgnoreFailure(s.err, [&] { store = Child(objFirst, "Parent").Get("StoreID").ToText(); });
      if (store.empty()) {
        IgnoreFailure(s.err, [&] {
          const Object series = Child(objFirst.Call("GetRecurrencePattern").ToObject(), "Parent");
          store = Child(series, "Parent").Get("StoreID").ToText();
        });
      }
    }
    if (store.empty()) {
      IgnoreFailure(s.err, [&] {
        const Object folder = Child(Child(s.main.objOutlook, "ActiveExplorer"), "CurrentFolder");
        store = folder.Get("StoreID").ToText();
      });
    }
  });
  s.err.Clear();
  return store;
}

}  // namespace qvx
