// UserInterface on Windows: MessageBoxW, and the forms as modal Win32 dialogs
// built in code from their FormModel (form_dialog.h).
#pragma once

#include "platform/user_interface.h"

namespace qvx::win32 {

class Win32UserInterface final : public platform::UserInterface {
 public:
  int MessageBox(std::string_view text, int style, std::string_view title) override;
  void ShowModal(platform::FormModel& form) override;
};

}  // namespace qvx::win32
