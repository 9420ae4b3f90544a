// Message boxes and modal forms. Windows shows them; the POSIX side records
// them and answers from a script, so that tests and scenarios can drive them.
#pragma once

#include <string>
#include <string_view>

namespace qvx::platform {

class FormModel;  // platform/form_model.h

// MsgBox styles and answers of the legacy runtime.
namespace msgbox {
inline constexpr int kOkOnly = 0;
inline constexpr int kOkCancel = 1;
inline constexpr int kYesNoCancel = 3;
inline constexpr int kYesNo = 4;
inline constexpr int kCritical = 16;
inline constexpr int kQuestion = 32;
inline constexpr int kExclamation = 48;
inline constexpr int kInformation = 64;
inline constexpr int kOk = 1;
inline constexpr int kCancel = 2;
inline constexpr int kYes = 6;
inline constexpr int kNo = 7;
}  // namespace msgbox

class UserInterface {
 public:
  virtual ~UserInterface() = default;
  // MsgBox(text, style, title): returns the answer (msgbox::kOk, kYes, ...).
  virtual int MessageBox(std::string_view text, int style, std::string_view title) = 0;
  // Shows the form modally; returns when the form is unloaded.
  virtual void ShowModal(FormModel& form) = 0;
};

}  // namespace qvx::platform
