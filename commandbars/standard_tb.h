// cStandardTB: the project toolbar of one inspector (and of one explorer).
//
// The bar's controls arrive with the command-bar interface; for now the
// object records its inspector and the two group flags, and counts its
// refreshes, which scenarios show.
//
//   auto bar = std::make_shared<cStandardTB>(s);
//   bar->oueCurrInspector = inspector;
//   bar->subAddButtons();
//   bar->ShowFields(inspector.Get("CurrentItem").ToObject());
#pragma once

#include "core/object.h"

namespace qvx {

class AddinState;

class cStandardTB {
 public:
  explicit cStandardTB(AddinState& s) : s_(s) {}

  // Puts the bar and its controls on the window.
  void subAddButtons() noexcept;
  // Shows the values of the item in the bar's controls.
  void ShowFields(const Object& item) noexcept;
  // Refreshes the bar after an outside change.
  void UpdateToolbar() noexcept;

  bool GROUP_CALENDAR_INSPECTOR_VISIBLE = false;
  bool GROUP_TASK_INSPECTOR_VISIBLE = false;
  Object oueCurrInspector;
  int toolbarUpdates = 0;  // how often UpdateToolbar ran, shown by scenarios

 private:
  [[maybe_unused]] AddinState& s_;
};

}  // namespace qvx
