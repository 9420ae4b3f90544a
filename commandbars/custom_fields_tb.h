// cCustomFieldsTB: the toolbar of the custom fields of one inspector (and of
// one explorer), built only where a custom field is active.
//
// The bar's controls arrive with the command-bar interface; for now the
// object records its inspector and counts its refreshes, which scenarios
// show.
#pragma once

#include "core/object.h"

namespace qvx {

class AddinState;

class cCustomFieldsTB {
 public:
  explicit cCustomFieldsTB(AddinState& s) : s_(s) {}

  // Puts the bar and its controls on the window.
  void subAddButtons() noexcept;
  // Shows the values of the item in the bar's controls.
  void ShowFields(const Object& item) noexcept;
  // Refreshes the bar after an outside change.
  void UpdateToolbar() noexcept;

  Object oueCurrInspector;
  int toolbarUpdates = 0;  // how often UpdateToolbar ran, shown by scenarios

 private:
  [[maybe_unused]] AddinState& s_;
};

}  // namespace qvx
