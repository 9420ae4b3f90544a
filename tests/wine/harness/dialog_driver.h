// Plays a user in a form's real Win32 dialog, step by step.
//
// Each step runs on a thread timer, which the dialog's loop delivers only
// when every message posted by the step before has been handled, so a step
// sees what the one before it caused. The controls are numbered from
// kFirstControlId in the model's declared order.
//
//   const bool closedItself = ShowAndDrive(form, {
//       [&](HWND dialog) { PostMessageW(ControlOf(dialog, 3), WM_CHAR, L'4', 0); },
//       [&](HWND dialog) { EXPECT_TRUE(TextOf(ControlOf(dialog, 3)) == L"4"); }});
#pragma once

#include "platform/win32/win32_api.h"

#include <functional>
#include <string>
#include <vector>

#include "platform/form_model.h"

namespace qvx::winetest {

inline constexpr int kFirstControlId = 100;

using DialogStep = std::function<void(HWND dialog)>;

// Shows the form modally and plays the steps in it. True if the form closed
// itself; false if the steps ran out with the dialog still open (it is then
// ended).
bool ShowAndDrive(platform::FormModel& form, std::vector<DialogStep> steps);

// The control at this position of the model's declared order.
HWND ControlOf(HWND dialog, int index);
// The same, by the control's name in the model.
HWND ControlOf(HWND dialog, const platform::FormModel& form, const std::string& name);
std::wstring TextOf(HWND hwnd);
// Clicks a button as the user's mouse would, through the dialog's WM_COMMAND.
void PostClick(HWND dialog, HWND button);

}  // namespace qvx::winetest
