// A FormModel shown as a modal Win32 dialog, built in code.
//
// Controls are created from the model in declared order and laid out top to
// bottom (a run of buttons side by side); the model keeps no geometry. The
// dialog is as high as the model's Height (twips, 15 to a pixel) and clips
// what lies below. After every event the dialog shows the model's captions,
// texts, visible and enabled states again; it closes when the model has
// unloaded itself. Clicks raise "Click", edits raise "Change" after the new
// text is in the model; the close box calls OnClose.
#pragma once

#include "platform/form_model.h"

namespace qvx::win32 {

// Returns when the form has unloaded (or the dialog could not be made).
void RunFormDialog(platform::FormModel& form) noexcept;

}  // namespace qvx::win32
