// The store that a report or a withdrawal names: the StoreID of the folder
// of the items, found the first way that gives one.
#pragma once

#include <string>

#include "core/object.h"

namespace qvx {

class AddinState;

// With a current item (Main::GetCurrentSelectedItem(s, false) gives one):
// objFirst.Parent.StoreID, then, for an occurrence whose Parent is its
// series, objFirst.GetRecurrencePattern.Parent.Parent.StoreID. Then, whether
// or not there was an item, the StoreID of the active explorer's current
// folder. A way that fails is no failure: the next is tried. "" if none gave
// a store; the pending error is left cleared.
std::string FindReportStore(AddinState& s, const Object& objFirst) noexcept;

}  // namespace qvx
