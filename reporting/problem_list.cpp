#include "reporting/problem_list.h"

#include "addin/state.h"
#include "platform/user_interface.h"

namespace qvx {
namespace {

platform::FormControl MakeControl(std::string name, std::string kind, std::string caption) {
  platform::FormControl c;
  c.name = std::move(name);
  c.kind = std::move(kind);
  c.caption = std::move(caption);
  return c;
}

}  // namespace

frmMessage::frmMessage() {
  controls_ = {
      MakeControl("Label1", "label",
                  "Please review the following problems with reporting the selected items:"),
      MakeControl("txtMessage", "textbox", ""),
      MakeControl("cmdOK", "button", "OK"),
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
