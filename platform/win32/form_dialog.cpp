#include "platform/win32/form_dialog.h"

#include "platform/win32/win32_api.h"

#include <commctrl.h>

#include <cstring>

#include "platform/win32/com_module.h"
#include "platform/win32/form_view.h"

namespace qvx::win32::detail {
namespace {

INT_PTR CALLBACK FormDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
  try {
    if (message == WM_INITDIALOG) {
      auto* view = reinterpret_cast<FormView*>(lParam);
      SetWindowLongPtrW(dialog, DWLP_USER, lParam);
      view->Create(dialog);
      return TRUE;  // the focus goes to the first control in tab order
    }
    auto* view = reinterpret_cast<FormView*>(GetWindowLongPtrW(dialog, DWLP_USER));
    if (view == nullptr) return FALSE;
    switch (message) {
      case WM_COMMAND:
        view->OnCommand(LOWORD(wParam), HIWORD(wParam), reinterpret_cast<HWND>(lParam));
        return TRUE;
      case WM_CLOSE:
        view->OnClose();
        return TRUE;
      case WM_NOTIFY: {
        auto* tip = reinterpret_cast<NMTTDISPINFOW*>(lParam);
        if (tip->hdr.code != TTN_GETDISPINFOW) return FALSE;
        tip->lpszText =
            const_cast<wchar_t*>(view->ToolTipOf(reinterpret_cast<HWND>(tip->hdr.idFrom)));
        return TRUE;
      }
      default:
        return FALSE;
    }
  } catch (...) {
    // The model traps its own failures; nothing may leave a dialog procedure.
  }
  return FALSE;
}

// An empty dialog template in the system's dialog font (DS_SHELLFONT with
// "MS Shell Dlg", which Windows maps to the user interface font); the
// controls are made in WM_INITDIALOG and the size follows the model.
struct alignas(4) Template {
  WORD words[32] = {};
  Template() {
    const DWORD style =
        WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME | DS_CENTER | DS_SHELLFONT;
    memcpy(&words[0], &style, sizeof(style));
    // words[2..3]: extended style; [4]: no items; [5..8]: x, y, cx, cy in
    // dialog units; [9]: no menu; [10]: standard class; [11]: empty title.
    words[7] = 200;
    words[8] = 100;
    words[12] = 8;  // points
    const wchar_t face[] = L"MS Shell Dlg";
    memcpy(&words[13], face, sizeof(face));
  }
};

}  // namespace
}  // namespace qvx::win32::detail

namespace qvx::win32 {

void RunFormDialog(platform::FormModel& form) noexcept {
  try {
    if (form.Unloaded()) return;
    const detail::Template dialog;
    detail::FormView view(form);
    DialogBoxIndirectParamW(ThisModule(), reinterpret_cast<const DLGTEMPLATE*>(dialog.words),
                            GetActiveWindow(), detail::FormDialogProc,
                            reinterpret_cast<LPARAM>(&view));
  } catch (...) {
    // The dialog could not be shown; the form stays as it was.
  }
}

}  // namespace qvx::win32
