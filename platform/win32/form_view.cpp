#include "platform/win32/form_view.h"

#include <commctrl.h>

#include <string>

#include "platform/win32/com_module.h"
#include "platform/win32/resources_win32.h"
#include "platform/win32/wide_text.h"

namespace qvx::win32::detail {
namespace {

namespace kind = platform::kind;

// The flowing layout of a form whose designer placed nothing, in pixels.
constexpr int kFlowWidth = 440;
constexpr int kMargin = 10;
constexpr int kGap = 6;
constexpr int kButtonWidth = 120;
constexpr int kButtonHeight = 26;
constexpr int kDropDownHeight = 160;  // a combo box's window holds its list

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

void SetText(HWND hwnd, const std::wstring& text) {
  if (WindowText(hwnd) != text) SetWindowTextW(hwnd, text.c_str());
}

struct WindowKind {
  const wchar_t* cls;
  DWORD style;
  DWORD exStyle;
};

WindowKind KindOf(const platform::FormControl& c) {
  const DWORD focus = WS_CHILD | WS_GROUP | WS_TABSTOP;
  if (c.kind == kind::kButton) {
    return {L"BUTTON", focus | (c.isDefault ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON), 0};
  }
  if (c.kind == kind::kCheck) return {L"BUTTON", focus | BS_AUTOCHECKBOX, 0};
  if (c.kind == kind::kFrame) return {L"BUTTON", WS_CHILD | WS_GROUP | BS_GROUPBOX, 0};
  if (c.kind == kind::kTextBox) {
    const DWORD lines =
        c.multiLine ? ES_MULTILINE | ES_AUTOVSCROLL | WS_VSCROLL | ES_WANTRETURN : ES_AUTOHSCROLL;
    return {L"EDIT", focus | lines, WS_EX_CLIENTEDGE};
  }
  if (c.kind == kind::kCombo) {
    const DWORD style = c.style == platform::kStyleDropDownList ? CBS_DROPDOWNLIST : CBS_DROPDOWN;
    return {L"COMBOBOX", focus | style | CBS_AUTOHSCROLL | WS_VSCROLL, 0};
  }
  if (c.kind == kind::kList) {
    const DWORD multi = c.multiSelect ? LBS_MULTIPLESEL : 0;
    return {L"LISTBOX", focus | LBS_NOTIFY | WS_VSCROLL | multi, WS_EX_CLIENTEDGE};
  }
  if (c.kind == kind::kImage) return {L"STATIC", WS_CHILD | SS_NOTIFY | SS_ETCHEDFRAME, 0};
  if (c.kind == kind::kPicture) return {L"STATIC", WS_CHILD | SS_NOTIFY | SS_BITMAP, 0};
  return {L"STATIC", WS_CHILD | WS_GROUP | SS_NOTIFY, 0};  // labels; clickable ones raise Click
}

// Every character typed into a text or combo box goes through the model's
// KeyPress first; a key set to 0 is swallowed.
LRESULT CALLBACK KeyPressProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                              DWORD_PTR view) noexcept {
  try {
    if (message == WM_CHAR) {
      const int key = reinterpret_cast<FormView*>(view)->OnChar(hwnd, static_cast<int>(wParam));
      if (key == 0) return 0;
      wParam = static_cast<WPARAM>(key);
    } else if (message == WM_NCDESTROY) {
      RemoveWindowSubclass(hwnd, KeyPressProc, 1);
    }
  } catch (...) {
    // The model traps its own failures; nothing may leave a window procedure.
  }
  return DefSubclassProc(hwnd, message, wParam, lParam);
}

// Rows of a combo or list box as the model holds them.
void ShowRows(HWND hwnd, const platform::FormControl& c) {
  const bool combo = c.kind == kind::kCombo;
  const UINT reset = combo ? CB_RESETCONTENT : LB_RESETCONTENT;
  const UINT add = combo ? CB_ADDSTRING : LB_ADDSTRING;
  const UINT count = combo ? CB_GETCOUNT : LB_GETCOUNT;
  const UINT length = combo ? CB_GETLBTEXTLEN : LB_GETTEXTLEN;
  const UINT get = combo ? CB_GETLBTEXT : LB_GETTEXT;
  bool same = static_cast<size_t>(SendMessageW(hwnd, count, 0, 0)) == c.list.size();
  for (size_t i = 0; same && i < c.list.size(); ++i) {
    std::wstring row(static_cast<size_t>(SendMessageW(hwnd, length, i, 0)) + 1, L'\0');
    row.resize(
        static_cast<size_t>(SendMessageW(hwnd, get, i, reinterpret_cast<LPARAM>(row.data()))));
    same = row == Wide(c.list[i]);
  }
  if (!same) {
    SendMessageW(hwnd, reset, 0, 0);
    for (const std::string& row : c.list) {
      SendMessageW(hwnd, add, 0, reinterpret_cast<LPARAM>(Wide(row).c_str()));
    }
  }
  if (combo) {
    SendMessageW(hwnd, CB_SETCURSEL, static_cast<WPARAM>(c.listIndex), 0);
    if (c.style != platform::kStyleDropDownList) SetText(hwnd, Wide(c.text));
    SendMessageW(hwnd, CB_LIMITTEXT, static_cast<WPARAM>(c.maxLength), 0);
    if (HWND edit = GetWindow(hwnd, GW_CHILD)) SendMessageW(edit, EM_SETREADONLY, c.locked, 0);
  } else if (c.multiSelect) {
    for (size_t i = 0; i < c.list.size(); ++i) {
      const bool on = i < c.selected.size() && c.selected[i];
      SendMessageW(hwnd, LB_SETSEL, on, static_cast<LPARAM>(i));
    }
  } else {
    SendMessageW(hwnd, LB_SETCURSEL, static_cast<WPARAM>(c.listIndex), 0);
  }
}

}  // namespace

void FormView::Create(HWND dialog) {
  dialog_ = dialog;
  font_ = reinterpret_cast<HFONT>(SendMessageW(dialog, WM_GETFONT, 0, 0));
  if (font_ == nullptr) font_ = static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
  INITCOMMONCONTROLSEX common{sizeof(common), ICC_WIN95_CLASSES};
  InitCommonControlsEx(&common);
  tips_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP, 0, 0,
                          0, 0, dialog, nullptr, ThisModule(), nullptr);
  const auto& controls = model_.Controls();
  for (size_t i = 0; i < controls.size(); ++i) {
    const platform::FormControl& c = controls[i];
    const WindowKind k = KindOf(c);
    HWND hwnd = CreateWindowExW(
        k.exStyle, k.cls, L"", k.style, 0, 0, 10, 10, dialog,
        reinterpret_cast<HMENU>(static_cast<INT_PTR>(kFirstControlId + static_cast<int>(i))),
        ThisModule(), nullptr);
    windows_.push_back(hwnd);
    if (hwnd == nullptr) continue;
    SendMessageW(hwnd, WM_SETFONT, reinterpret_cast<WPARAM>(font_), FALSE);
    if (c.kind == kind::kTextBox)
      SetWindowSubclass(hwnd, KeyPressProc, 1, reinterpret_cast<DWORD_PTR>(this));
    if (c.kind == kind::kCombo) {
      if (HWND edit = GetWindow(hwnd, GW_CHILD)) {
        SetWindowSubclass(edit, KeyPressProc, 1, reinterpret_cast<DWORD_PTR>(this));
      }
    }
    AddToolTip(hwnd);
    if (c.kind == kind::kPicture) {
      if (UniqueBitmap picture = LoadBitmapResource(ThisModule(), c.picture)) {
        SendMessageW(hwnd, STM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(picture.get()));
        pictures_.push_back(std::move(picture));
      }
    }
    if (c.kind == kind::kButton && c.isDefault) {
      SendMessageW(dialog, DM_SETDEFID, static_cast<WPARAM>(kFirstControlId + static_cast<int>(i)),
                   0);
    }
  }
  Sync();
}

// Every control gets a tool; its text is asked for when shown, so that a
// ControlTipText set after the form was built shows too.
void FormView::AddToolTip(HWND hwnd) {
  if (tips_ == nullptr) return;
  TOOLINFOW tool{};
  tool.cbSize = sizeof(tool);
  tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
  tool.hwnd = dialog_;
  tool.uId = reinterpret_cast<UINT_PTR>(hwnd);
  tool.lpszText = LPSTR_TEXTCALLBACKW;
  SendMessageW(tips_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

const wchar_t* FormView::ToolTipOf(HWND hwnd) {
  const int index = IndexOf(hwnd);
  tip_ = index < 0 ? std::wstring() : Wide(model_.Controls()[static_cast<size_t>(index)].toolTip);
  return tip_.c_str();
}

int FormView::IndexOf(HWND hwnd) const {
  for (size_t i = 0; i < windows_.size(); ++i) {
    if (windows_[i] == hwnd || (hwnd != nullptr && GetParent(hwnd) == windows_[i])) {
      return static_cast<int>(i);
    }
  }
  return -1;
}

void FormView::OnCommand(int id, int code, HWND from) {
  if (syncing_) return;
  if (from == nullptr && (id == IDOK || id == IDCANCEL)) {
    // Enter without a default button does nothing; Esc clicks the cancel
    // button, or closes as the close box does.
    platform::FormControl* button = id == IDOK ? model_.DefaultButton() : model_.CancelButton();
    if (button != nullptr && button->visible && button->enabled) {
      model_.Raise(button->name, "Click");
    } else if (id == IDCANCEL) {
      model_.QueryClose(platform::kCloseByControlMenu);
    }
    return AfterEvent();
  }
  const int index = id - kFirstControlId;
  auto& controls = model_.Controls();
  if (index < 0 || static_cast<size_t>(index) >= windows_.size()) return;
  platform::FormControl& c = controls[static_cast<size_t>(index)];
  const std::string name = c.name;
  HWND hwnd = windows_[static_cast<size_t>(index)];
  if (c.kind == kind::kTextBox && code == EN_CHANGE) {
    model_.TextEdited(name, Narrow(WindowText(hwnd)));
  } else if (c.kind == kind::kCombo && code == CBN_EDITCHANGE) {
    model_.TextEdited(name, Narrow(WindowText(hwnd)));
  } else if ((c.kind == kind::kCombo && code == CBN_SELCHANGE) ||
             (c.kind == kind::kList && code == LBN_SELCHANGE)) {
    const bool combo = c.kind == kind::kCombo;
    const UINT which = combo ? CB_GETCURSEL : (c.multiSelect ? LB_GETCARETINDEX : LB_GETCURSEL);
    const int row = static_cast<int>(SendMessageW(hwnd, which, 0, 0));
    if (!c.locked && row >= 0) model_.RowChosen(name, row);
  } else if (c.kind == kind::kCheck && code == BN_CLICKED) {
    if (!c.locked) model_.Ticked(name, SendMessageW(hwnd, BM_GETCHECK, 0, 0) == BST_CHECKED);
  } else if ((c.kind == kind::kButton && code == BN_CLICKED) ||
             ((c.kind == kind::kLabel || c.kind == kind::kImage || c.kind == kind::kPicture) &&
              code == STN_CLICKED)) {
    model_.Raise(name, "Click");
  } else {
    return;
  }
  AfterEvent();  // also puts back what a locked control was not to take
}

void FormView::OnClose() {
  model_.QueryClose(platform::kCloseByControlMenu);
  AfterEvent();
}

int FormView::OnChar(HWND edit, int key) {
  const int index = IndexOf(edit);
  if (syncing_ || index < 0) return key;
  const platform::FormControl& c = model_.Controls()[static_cast<size_t>(index)];
  if (c.locked) return key;  // a read-only box takes no text anyway
  const int passed = model_.KeyPress(c.name, key);
  if (model_.Unloaded()) AfterEvent();
  return passed;
}

void FormView::AfterEvent() {
  if (model_.Unloaded()) {
    EndDialog(dialog_, IDOK);
  } else {
    Sync();
  }
}

void FormView::Sync() {
  syncing_ = true;
  SetText(dialog_, Wide(model_.Caption()));
  const auto& controls = model_.Controls();
  for (size_t i = 0; i < controls.size() && i < windows_.size(); ++i) {
    const platform::FormControl& c = controls[i];
    HWND hwnd = windows_[i];
    if (hwnd == nullptr) continue;
    if (c.kind == kind::kTextBox) {
      SetText(hwnd, ForEdit(c.text));
      SendMessageW(hwnd, EM_SETREADONLY, c.locked, 0);
      SendMessageW(hwnd, EM_LIMITTEXT, static_cast<WPARAM>(c.maxLength), 0);
    } else if (c.kind == kind::kCombo || c.kind == kind::kList) {
      ShowRows(hwnd, c);
    } else if (c.kind != kind::kImage && c.kind != kind::kPicture) {
      SetText(hwnd, Wide(c.caption));
    }
    if (c.kind == kind::kCheck) {
      SendMessageW(hwnd, BM_SETCHECK, c.value ? BST_CHECKED : BST_UNCHECKED, 0);
    }
    EnableWindow(hwnd, c.enabled);
    ShowWindow(hwnd, c.visible ? SW_SHOWNA : SW_HIDE);
  }
  HDC dc = GetDC(dialog_);
  HGDIOBJ oldFont = SelectObject(dc, font_);
  Place(dc);
  SelectObject(dc, oldFont);
  ReleaseDC(dialog_, dc);
  InvalidateRect(dialog_, nullptr, TRUE);
  syncing_ = false;
}

// Places the controls where the designer put them, or top to bottom in tab
// order (a run of buttons side by side), and sizes the window.
void FormView::Place(HDC dc) {
  const int dpi = GetDeviceCaps(dc, LOGPIXELSY);
  const auto px = [dpi](int twips) { return MulDiv(twips, dpi, 1440); };
  const auto& controls = model_.Controls();
  const int width = model_.Width() > 0 ? px(model_.Width()) : kFlowWidth;
  int y = kMargin;
  int rowX = kMargin;
  bool inButtonRow = false;
  for (size_t i = 0; i < controls.size() && i < windows_.size(); ++i) {
    const platform::FormControl& c = controls[i];
    HWND hwnd = windows_[i];
    if (hwnd == nullptr || !c.visible) continue;
    const int dropDown = c.kind == kind::kCombo ? kDropDownHeight : 0;
    if (c.width > 0) {
      MoveWindow(hwnd, px(c.left), px(c.top), px(c.width), px(c.height) + dropDown, FALSE);
      continue;
    }
    if (c.kind == kind::kButton) {
      if (!inButtonRow || rowX + kButtonWidth > width - kMargin) {
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
    const int inner = width - 2 * kMargin;
    int height = 22;
    if (c.kind == kind::kLabel || c.kind == kind::kFrame) {
      RECT r{0, 0, inner, 0};
      const std::wstring text = Wide(c.caption);
      DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &r, DT_CALCRECT | DT_WORDBREAK);
      height = (r.bottom - r.top) + (c.kind == kind::kFrame ? 8 : 2);
    } else if (c.kind == kind::kTextBox && c.multiLine) {
      height = 120;
    } else if (c.kind == kind::kList) {
      height = 90;
    }
    MoveWindow(hwnd, kMargin, y, inner, height + dropDown, FALSE);
    y += height + kGap;
  }
  if (inButtonRow) y += kButtonHeight + kGap;

  RECT frame{0, 0, width, y + kMargin};
  AdjustWindowRectEx(&frame, static_cast<DWORD>(GetWindowLongW(dialog_, GWL_STYLE)), FALSE,
                     static_cast<DWORD>(GetWindowLongW(dialog_, GWL_EXSTYLE)));
  const int outerHeight = model_.Height() > 0 ? px(model_.Height()) : frame.bottom - frame.top;
  SetWindowPos(dialog_, nullptr, 0, 0, frame.right - frame.left, outerHeight,
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace qvx::win32::detail
