// frmMessage, the "Message Manager": the problems found while validating a
// report, shown after the acceptable items have gone to the companion.
//
//   ShowProblemList(s, "Planning\r\n\t- Problem: Private Item not allowed for reporting!");
//
// Controls: Label1 with its fixed text, txtMessage holding the list, cmdOK,
// whose Click unloads the form (as does the close box).
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/form_model.h"

namespace qvx {

class AddinState;

class frmMessage : public platform::FormModel {
 public:
  static constexpr int kHeight = 4680;

  frmMessage();

  std::string Caption() const override { return "Message Manager"; }
  int Height() const override { return kHeight; }
  std::vector<platform::FormControl>& Controls() override { return controls_; }
  void OnEvent(std::string_view control, std::string_view event) override;
  bool Unloaded() const override { return unloaded_; }
  void OnClose() override { unloaded_ = true; }

  // Puts the list into txtMessage.
  void ShowMessage(const std::string& strMessage);
  void cmdOK_Click() { unloaded_ = true; }

 private:
  bool unloaded_ = false;
  std::vector<platform::FormControl> controls_;
};

// Makes a new frmMessage with the text, shows it modally, releases it.
void ShowProblemList(AddinState& s, const std::string& text);

}  // namespace qvx
