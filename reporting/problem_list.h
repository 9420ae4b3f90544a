// frmMessage, the "Message Manager": the problems found while validating a
// report, shown after the acceptable items have gone to the companion.
//
//   ShowProblemList(s, "Planning\r\n\t- Problem: Private Item not allowed for reporting!");
//
// Controls: Label1 with its fixed text, txtMessage holding the list, cmdOK,
// whose Click (or Enter, or Esc) unloads the form, as does the close box.
#pragma once

#include <string>

#include "platform/form_model.h"

namespace qvx {

class AddinState;

class frmMessage : public platform::FormModel {
 public:
  static constexpr int kHeight = 4680;

  frmMessage();

  // Puts the list into txtMessage.
  void ShowMessage(const std::string& strMessage);
  void cmdOK_Click() { Unload(); }
};

// Makes a new frmMessage with the text, shows it modally, releases it.
void ShowProblemList(AddinState& s, const std::string& text);

}  // namespace qvx
