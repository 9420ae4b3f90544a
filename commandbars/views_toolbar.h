// cViews: the pop-up "View: ..." on an explorer's bar "Quorvix", listing the
// fourteen prepared views and, behind a line, the folder's other views; a
// click switches the explorer to the view.
//
// A prepared view is provisioned into the folder at its first click and only
// applied afterwards (LoadView); another view is simply shown. The pop-up is
// built once with the bar, for the folder the explorer shows then: a view the
// user adds later appears at the next rebuild (a folder switch). Building it
// also deletes the views that a change of the titles left behind
// (DeleteOrphanedViews).
//
// The caption reads "View: Calendar" after building and "View : [Due Date]"
// after a click; both forms are the product's.
//
// Held by a shared_ptr: the wrappers of the folder's own views call it back,
// and hold it until RemoveButtons lets them go.
//
//   auto views = std::make_shared<cViews>(s);
//   views->oueCurrExplorer = explorer;
//   views->subAddButtons(bar);      // "Views.AddButtons" on a failure
//   views->UpdateToolbar();         // new titles on the six buttons that show them
//   views->RemoveButtons();         // then release it
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "commandbars/wrapped_button.h"
#include "core/event_field.h"
#include "core/object.h"
#include "views/view_catalogue.h"

namespace qvx {

class AddinState;

class cViews final : public IMyEventInterface, public std::enable_shared_from_this<cViews> {
 public:
  explicit cViews(AddinState& s);
  ~cViews();
  cViews(const cViews&) = delete;
  cViews& operator=(const cViews&) = delete;

  // Adds the pop-up to `toolbar`; a folder with no view at all gets none.
  // What was built before a failure stays.
  void subAddButtons(const Object& toolbar) noexcept;
  // Deletes every control it added; failures are ignored.
  void RemoveButtons() noexcept;
  // Captions the buttons whose names carry the titles with the titles of now.
  void UpdateToolbar() noexcept;

  // A click on one of the folder's own views (through its cWrappedButton).
  void ButtonClick(const Object& Ctrl, bool& CancelDefault) override;

  Object oueCurrExplorer;  // set before subAddButtons

 private:
  // The click of kPreparedViews[index]'s button: provisions or applies it.
  void PreparedButton_Click(size_t index);
  void ShowChosen(const std::string& caption);

  AddinState& s_;
  // The buttons of kPreparedViews, in its order (cmdViewByReportedID ...).
  std::array<std::unique_ptr<EventField<cViews>>, kPreparedViews.size()> preparedButtons_;
  Object cmdViewsPopup;
  std::vector<Object> arrViewButtons;
  std::vector<std::shared_ptr<cWrappedButton>> arrWrappedButtons;
};

}  // namespace qvx
