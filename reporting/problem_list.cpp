#include "reporting/problem_list.h"

#include "core/variant.h"
#include "platform/user_interface.h"
#include "state/addin_state.h"

namespace qvx {

namespace {

std::vector<platform::FormControl> Layout() {
  namespace kind = platform::kind;
  platform::FormControl message = platform::MakeControl("txtMessage", kind::kTextBox, "");
  message.multiLine = true;
  platform::FormControl ok = platform::MakeControl("cmdOK", kind::kButton, "OK");
  ok.isDefault = true;
  ok.isCancel = true;
  return {platform::MakeControl(
              "Label1", kind::kLabel,
              "Please review the following problems with reporting the selected items:"),
          std::move(message), std::move(ok)};
}

}  // namespace

frmMessage::frmMessage() : FormModel("Message Manager", kHeight, Layout()) {
  On("cmdOK", "Click", [this](EventArgs&) { cmdOK_Click(); });
}

void frmMessage::ShowMessage(const std::string& strMessage) {
  Control("txtMessage").Put("Text", Variant(strMessage));
}

void ShowProblemList(AddinState& s, const std::string& text) {
  frmMessage form;
  form.ShowMessage(text);
  s.ui().ShowModal(form);
}

}  // namespace qvx
