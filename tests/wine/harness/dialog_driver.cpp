#include "harness/dialog_driver.h"

#include "platform/win32/form_dialog.h"

namespace qvx::winetest {
namespace {

struct Drive {
  std::vector<DialogStep> steps;
  size_t next = 0;
  bool endedByTest = false;
};

Drive*& Current() {
  static Drive* drive = nullptr;
  return drive;
}

BOOL CALLBACK FindDialog(HWND hwnd, LPARAM found) {
  wchar_t cls[16] = {};
  GetClassNameW(hwnd, cls, 16);
  if (IsWindowVisible(hwnd) && std::wstring(cls) == L"#32770") {
    *reinterpret_cast<HWND*>(found) = hwnd;
    return FALSE;
  }
  return TRUE;
}

void CALLBACK Tick(HWND, UINT, UINT_PTR id, DWORD) {
  Drive& drive = *Current();
  HWND dialog = nullptr;
  EnumThreadWindows(GetCurrentThreadId(), FindDialog, reinterpret_cast<LPARAM>(&dialog));
  if (dialog == nullptr) return;  // not shown yet
  if (drive.next < drive.steps.size()) {
    drive.steps[drive.next++](dialog);
    return;
  }
  // Every step is done and the dialog is still there: end it, and say so.
  KillTimer(nullptr, id);
  drive.endedByTest = true;
  EndDialog(dialog, IDABORT);
}

}  // namespace

bool ShowAndDrive(platform::FormModel& form, std::vector<DialogStep> steps) {
  Drive drive{std::move(steps)};
  Current() = &drive;
  const UINT_PTR timer = SetTimer(nullptr, 0, USER_TIMER_MINIMUM, Tick);
  win32::RunFormDialog(form);
  KillTimer(nullptr, timer);
  Current() = nullptr;
  return !drive.endedByTest;
}

HWND ControlOf(HWND dialog, int index) {
  return GetDlgItem(dialog, kFirstControlId + index);
}

HWND ControlOf(HWND dialog, const platform::FormModel& form, const std::string& name) {
  const auto& controls = form.Controls();
  for (size_t i = 0; i < controls.size(); ++i) {
    if (controls[i].name == name) return ControlOf(dialog, static_cast<int>(i));
  }
  return nullptr;
}

std::wstring TextOf(HWND hwnd) {
  wchar_t text[256] = {};
  GetWindowTextW(hwnd, text, 256);
  return text;
}

void PostClick(HWND dialog, HWND button) {
  PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(button), BN_CLICKED),
               reinterpret_cast<LPARAM>(button));
}

}  // namespace qvx::winetest
