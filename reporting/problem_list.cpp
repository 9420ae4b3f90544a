#include "reporting/problem_list.h"

#include "platform/user_interface.h"
#include "state/addin_state.h"

namespace qvx {

frmMessage::frmMessage() {
  controls_ = {
      platform::MakeControl(
          "Label1", "label",
          "Please review the following problems with reporting the selected items:"),
      platform::MakeControl("txtMessage", "textbox", ""),
      platform::MakeControl("cmdOK", "button", "OK"),
  };
}

void frmMessage::ShowMessage(const std::string& strMessage) {
  Find("txtMessage")->text = strMessage;
}

void frmMessage::OnEvent(std::string_view control, std::string_view event) {
  if (control == "cmdOK" && event == "Click") cmdOK_Click();
}

void ShowProblemList(AddinState& s, const std::string& text) {
  frmMessage form;
  form.ShowMessage(text);
  s.ui().ShowModal(form);
}

}  // namespace qvx
