#include "platform/win32/user_interface_win32.h"

#include "platform/win32/win32_api.h"

#include "platform/win32/form_dialog.h"
#include "platform/win32/wide_text.h"

namespace qvx::win32 {

int Win32UserInterface::MessageBox(std::string_view text, int style, std::string_view title) {
  // The runtime's MsgBox styles and answers are Win32's own numbers.
  return MessageBoxW(GetActiveWindow(), Wide(text).c_str(), Wide(title).c_str(),
                     static_cast<UINT>(style) | MB_SETFOREGROUND);
}

void Win32UserInterface::ShowModal(platform::FormModel& form) {
  RunFormDialog(form);
}

}  // namespace qvx::win32
