// The one way to ask for what the user is working on: the item of the
// active inspector, or the selection of the active explorer.
//
//   Object first = Main::GetCurrentSelectedItem(s, true);   // item or Selection
//   Object item = Main::GetCurrentSelectedItem(s, false);   // always one item
//
// Both ignore every failure of the host and give Nothing for "no window",
// "no selection" (a host that refuses Selection counts as an empty one) or a
// window of another kind. The pending error is left cleared.
#pragma once

#include "core/object.h"

namespace qvx {
class AddinState;
}

namespace qvx::Main {

// With an explorer active: Nothing for an empty selection, its only item for
// one, and for several the Selection itself when blnMultiple, else its first
// item. With an inspector active: its CurrentItem, and
// s.report.blnLastItemFromInspector is set (it is cleared on every call).
Object GetCurrentSelectedItem(AddinState& s, bool blnMultiple) noexcept;

// The first selected item when an explorer is the active window; Nothing
// otherwise, and for an inspector.
Object GetCurrentSelectedItemExplorer(AddinState& s) noexcept;

}  // namespace qvx::Main
