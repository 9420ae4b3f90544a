// FormView: the Win32 controls of one FormModel inside a dialog, kept in step
// with the model. Internal to form_dialog.cpp and its tests.
//
// Create makes one child window per control in declared order (so the
// dialog's tab order is the model's), with WS_TABSTOP on what takes the
// focus, BS_DEFPUSHBUTTON on the model's default button, and the dialog's
// font. A picture control shows its bitmap resource of the add-in's module.
// Text and combo boxes are subclassed so that every typed character
// raises KeyPress first; a key the model swallows never reaches the box.
// Sync shows the model again (texts, lists, states, places) after each event.
#pragma once

#include "platform/win32/win32_api.h"

#include <string>
#include <vector>

#include "platform/form_model.h"
#include "platform/win32/win_handles.h"

namespace qvx::win32::detail {

inline constexpr int kFirstControlId = 100;

class FormView {
 public:
  explicit FormView(platform::FormModel& model) : model_(model) {}

  void Create(HWND dialog);
  // WM_COMMAND from a control, Enter (IDOK) or Esc (IDCANCEL).
  void OnCommand(int id, int code, HWND from);
  // The close box: QueryClose, which the model may cancel.
  void OnClose();
  // A character typed into a text or combo box; returns the key to pass on.
  int OnChar(HWND edit, int key);
  // The tool tip of a control (ControlTipText), valid until the next call.
  const wchar_t* ToolTipOf(HWND hwnd);

 private:
  void AfterEvent();
  void Sync();
  void Place(HDC dc);
  int IndexOf(HWND hwnd) const;
  void AddToolTip(HWND hwnd);

  platform::FormModel& model_;
  HWND dialog_ = nullptr;
  HFONT font_ = nullptr;
  HWND tips_ = nullptr;
  std::vector<HWND> windows_;
  std::vector<UniqueBitmap> pictures_;  // shown by picture controls, freed after them
  std::wstring tip_;
  bool syncing_ = false;
};

}  // namespace qvx::win32::detail
