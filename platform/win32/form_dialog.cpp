#include "platform/win32/form_dialog.h"

#include "platform/win32/win32_api.h"

#include <cstring>
#include <string>
#include <vector>

#include "platform/win32/com_module.h"
#include "platform/win32/wide_text.h"

namespace qvx::win32::detail {

constexpr int kFirstControlId = 100;
constexpr int kWidth = 440;
constexpr int kMargin = 10;
constexpr int kGap = 6;
constexpr int kButtonWidth = 120;
constexpr int kButtonHeight = 26;
constexpr int kTwipsPerPixel = 15;

// Multi-line edit controls want CR LF between lines.
std::wstring ForEdit(const std::string& text) {
  std::wstring w = Wide(text);
  std::wstring out;
  out.reserve(w.size());
  for (size_t i = 0; i < w.size(); ++i) {
    if (w[i] == L'\n' && (i == 0 || w[i - 1] != L'\r')) out.push_back(L'\r');
    out.push_back(w[i]);
  }
  return out;
}

std::wstring WindowText(HWND hwnd) {
  const int n = GetWindowTextLengthW(hwnd);
  std::wstring text(static_cast<size_t>(n) + 1, L'\0');
  const int got = GetWindowTextW(hwnd, text.data(), n + 1);
  text.resize(static_cast<size_t>(got > 0 ? got : 0));
  return text;
}

class FormView {
 public:
  explicit FormView(platform::FormModel& model) : model_(model) {}

  void Create(HWND dialog) {
    dialog_ = dialog;
    font_ = static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
    const auto& controls = model_.Controls();
    for (size_t i = 0; i < controls.size(); ++i) {
      const platform::FormControl& c = controls[i];
      const wchar_t* cls = L"STATIC";
      DWORD style = WS_CHILD | WS_TABSTOP;
      DWORD exStyle = 0;
      if (c.kind == "button") {
        cls = L"BUTTON";
        style |= BS_PUSHBUTTON;
      } else if (c.kind == "check") {
        cls = L"BUTTON";
        style |= BS_AUTOCHECKBOX;
      } else if (c.kind == "frame") {
        cls = L"BUTTON";
        style = WS_CHILD | BS_GROUPBOX;
      } else if (c.kind == "textbox") {
        cls = L"EDIT";
        exStyle = WS_EX_CLIENTEDGE;
        style |= ES_AUTOHSCROLL;
        if (c.text.find('\n') != std::string::npos) {
          style |= ES_MULTILINE | ES_AUTOVSCROLL | WS_VSCROLL | ES_WANTRETURN;
        }
      } else if (c.kind == "combo") {
        cls = L"COMBOBOX";
        style |= CBS_DROPDOWN | CBS_AUTOHSCROLL | WS_VSCROLL;
      } else if (c.kind == "list") {
        cls = L"LISTBOX";
        exStyle = WS_EX_CLIENTEDGE;
        style |= LBS_NOTIFY | WS_VSCROLL;
      } else {
        style = WS_CHILD | SS_NOTIFY;  // labels; clickable ones raise Click
      }
      HWND hwnd =
          CreateWindowExW(exStyle, cls, L"", style, 0, 0, 10, 10, dialog,
                          reinterpret_cast<HMENU>(static_cast<INT_PTR>(kFirstControlId + i)),
                          ThisModule(), nullptr);
      if (hwnd) SendMessageW(hwnd, WM_SETFONT, reinterpret_cast<WPARAM>(font_), FALSE);
      windows_.push_back(hwnd);
    }
    Sync();
  }

  void OnCommand(int id, int code) {
    const int index = id - kFirstControlId;
    auto& controls = model_.Controls();
    if (syncing_ || index < 0 || static_cast<size_t>(index) >= controls.size() ||
        static_cast<size_t>(index) >= windows_.size()) {
      return;
    }
    platform::FormControl& c = controls[static_cast<size_t>(index)];
    const std::string name = c.name;
    HWND hwnd = windows_[static_cast<size_t>(index)];
    if (c.kind == "textbox" && code == EN_CHANGE) {
      c.text = Narrow(WindowText(hwnd));
      model_.OnEvent(name, "Change");
    } else if (c.kind == "combo" && (code == CBN_EDITCHANGE || code == CBN_SELCHANGE)) {
      c.text = Narrow(WindowText(hwnd));
      model_.OnEvent(name, "Change");
    } else if (c.kind == "list" && code == LBN_SELCHANGE) {
      model_.OnEvent(name, "Click");
    } else if ((c.kind == "button" || c.kind == "check") && code == BN_CLICKED) {
      model_.OnEvent(name, "Click");
    } else if (c.kind == "label" && code == STN_CLICKED) {
      model_.OnEvent(name, "Click");
    } else {
      return;
    }
    AfterEvent();
  }

  void OnClose() {
    model_.OnClose();
    AfterEvent();
  }

  void AfterEvent() {
    if (model_.Unloaded()) {
      EndDialog(dialog_, IDOK);
    } else {
      Sync();
    }
  }

 private:
  // Shows the model's state and lays the visible controls out.
  void Sync() {
    syncing_ = true;
    SetText(dialog_, Wide(model_.Caption()));
    HDC dc = GetDC(dialog_);
    HGDIOBJ oldFont = SelectObject(dc, font_);
    const auto& controls = model_.Controls();
    int y = kMargin;
    int rowX = kMargin;
    bool inButtonRow = false;
    for (size_t i = 0; i < controls.size() && i < windows_.size(); ++i) {
      const platform::FormControl& c = controls[i];
      HWND hwnd = windows_[i];
      if (!hwnd) continue;
      const bool editable = c.kind == "textbox" || c.kind == "combo";
      SetText(hwnd, editable ? ForEdit(c.text) : Wide(c.caption));
      EnableWindow(hwnd, c.enabled);
      ShowWindow(hwnd, c.visible ? SW_SHOWNA : SW_HIDE);
      if (!c.visible) continue;
      if (c.kind == "button") {
        if (!inButtonRow || rowX + kButtonWidth > kWidth - kMargin) {
          if (inButtonRow) y += kButtonHeight + kGap;
          rowX = kMargin;
        }
        MoveWindow(hwnd, rowX, y, kButtonWidth, kButtonHeight, FALSE);
        rowX += kButtonWidth + kGap;
        inButtonRow = true;
        continue;
      }
      if (inButtonRow) {
        y += kButtonHeight + kGap;
        inButtonRow = false;
      }
      const int width = kWidth - 2 * kMargin;
      int height = 22;
      if (c.kind == "label" || c.kind == "frame") {
        RECT r{0, 0, width, 0};
        const std::wstring text = Wide(c.caption);
        DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &r,
                  DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
        height = (r.bottom - r.top) + (c.kind == "frame" ? 8 : 2);
      } else if (c.kind == "textbox" && (GetWindowLongW(hwnd, GWL_STYLE) & ES_MULTILINE)) {
        height = 120;
      } else if (c.kind == "list") {
        height = 90;
      }
      // A combo box's height includes its drop-down list.
      MoveWindow(hwnd, kMargin, y, width, c.kind == "combo" ? 160 : height, FALSE);
      y += height + kGap;
    }
    if (inButtonRow) y += kButtonHeight + kGap;
    SelectObject(dc, oldFont);
    ReleaseDC(dialog_, dc);

    const int modelHeight = model_.Height() / kTwipsPerPixel;
    RECT frame{0, 0, kWidth, modelHeight > 0 ? modelHeight : y + kMargin};
    AdjustWindowRectEx(&frame, static_cast<DWORD>(GetWindowLongW(dialog_, GWL_STYLE)), FALSE,
                       static_cast<DWORD>(GetWindowLongW(dialog_, GWL_EXSTYLE)));
    SetWindowPos(dialog_, nullptr, 0, 0, frame.right - frame.left, frame.bottom - frame.top,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    InvalidateRect(dialog_, nullptr, TRUE);
    syncing_ = false;
  }

  static void SetText(HWND hwnd, const std::wstring& text) {
    if (WindowText(hwnd) != text) SetWindowTextW(hwnd, text.c_str());
  }

  platform::FormModel& model_;
  HWND dialog_ = nullptr;
  HFONT font_ = nullptr;
  std::vector<HWND> windows_;
  bool syncing_ = false;
};

INT_PTR CALLBACK FormDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
  try {
    if (message == WM_INITDIALOG) {
      auto* view = reinterpret_cast<FormView*>(lParam);
      SetWindowLongPtrW(dialog, DWLP_USER, lParam);
      view->Create(dialog);
      return TRUE;
    }
    auto* view = reinterpret_cast<FormView*>(GetWindowLongPtrW(dialog, DWLP_USER));
    if (!view) return FALSE;
    if (message == WM_COMMAND) {
      if (LOWORD(wParam) == IDCANCEL && lParam == 0) {
        view->OnClose();  // Escape: as the close box
      } else {
        view->OnCommand(LOWORD(wParam), HIWORD(wParam));
      }
      return TRUE;
    }
    if (message == WM_CLOSE) {
      view->OnClose();
      return TRUE;
    }
  } catch (...) {
    // The model traps its own failures; nothing may leave a dialog procedure.
  }
  return FALSE;
}

}  // namespace qvx::win32::detail

namespace qvx::win32 {

void RunFormDialog(platform::FormModel& form) noexcept {
  try {
    if (form.Unloaded()) return;
    // An empty dialog template (no menu, class or title); the controls are
    // made in WM_INITDIALOG. Laid out by hand: DLGTEMPLATE is 18 bytes.
    alignas(4) WORD tmpl[12] = {};
    const DWORD style = WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME | DS_CENTER;
    memcpy(&tmpl[0], &style, sizeof(style));
    tmpl[7] = 200;  // cx in dialog units; resized to the model at once
    tmpl[8] = 100;  // cy
    detail::FormView view(form);
    DialogBoxIndirectParamW(ThisModule(), reinterpret_cast<const DLGTEMPLATE*>(tmpl),
                            GetActiveWindow(), detail::FormDialogProc,
                            reinterpret_cast<LPARAM>(&view));
  } catch (...) {
    // The dialog could not be shown; the form stays as it was.
  }
}

}  // namespace qvx::win32
