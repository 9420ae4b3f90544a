#include "commandbars/wrapped_button.h"

#include "state/addin_state.h"
#include "support/error_reporting.h"

namespace qvx {

cWrappedButton::cWrappedButton(AddinState& s) : s_(s), cmdOfficeButton(*this, s) {
  // The owner traps its own failures; this label only marks one that escapes it.
  cmdOfficeButton.On("Click", "cWrappedButton.cmdOfficeButton_Click",
                     [](cWrappedButton& self, Line&, EventArgs&) { self.cmdOfficeButton_Click(); });
}

void cWrappedButton::cmdOfficeButton_Click() {
  SetCurrentAction(s_, "cWrappedButton.cmdOfficeButton_Click");
  // The host's own CancelDefault is neither passed on nor set.
  if (callback_) callback_->ButtonClick(Wrapped(), blnNew);
}

}  // namespace qvx
