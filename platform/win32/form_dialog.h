// A FormModel shown as a modal Win32 dialog, built in code.
//
// The dialog has the system's dialog font (DS_SHELLFONT). Its controls are
// made from the model in declared order, which is the tab order, and placed
// where the model's designer put them (twips), or else top to bottom (a run
// of buttons side by side). The window is as high as the model's Height
// (twips, title bar included) and clips what lies below.
//
// Keyboard: the dialog manager's own (Tab, mnemonics such as "&Save").
// Enter clicks the model's Default button, Esc its Cancel button or, with
// none, closes as the close box does. Each character typed into a text or
// combo box raises KeyPress first; a key the handler sets to 0 never reaches
// the box. The close box raises QueryClose, whose Cancel keeps the dialog.
// Combo and list boxes show the model's rows; choosing one raises Change and
// Click, an edit Change after the new text is in the model, a click on a
// button, label, image or picture Click. A picture shows its bitmap resource
// of the add-in's module. After every event the dialog shows the model again;
// it closes when the model has unloaded. No exception leaves the dialog
// procedure.
#pragma once

#include "platform/form_model.h"

namespace qvx::win32 {

// Returns when the form has unloaded (or the dialog could not be made).
void RunFormDialog(platform::FormModel& form) noexcept;

}  // namespace qvx::win32
