// The late-bound face of a form's control: what FormModel::Control hands out.
//
// Members, by name without regard to case, as the controls of the legacy
// forms answer them (438 for a member the control's kind lacks):
//
//   all kinds          Name (get), Enabled, Visible, ControlTipText
//   label, button,     Caption
//     check, frame
//   button             Default, Cancel (Enter and Esc click it)
//   textbox, combo,    Text, Value, Locked, MaxLength; textbox: MultiLine
//     list             combo: Style (kStyleDropDownList: Text only a row, else 380)
//   combo, list        Clear, AddItem(text [, index]), RemoveItem(index),
//                      List(index) get/put, ListCount, ListIndex (-1 none)
//   list               Selected(index) get/put, MultiSelect
//   check              Value (the tick), Locked
//
// As the legacy controls do, a change made in code raises the control's
// events: a new Text or Value raises Change; a combo or list box whose chosen
// row changes to a row raises Click. A row index out of range fails with 381,
// an unacceptable value with 380.
//
//   Object combo = form.Control("cboProject");
//   combo.Call("AddItem", {Variant("Alpha")});
//   combo.Put("ListIndex", Variant(int32_t{0}));   // Text "Alpha", Change, Click
#pragma once

#include <memory>
#include <string>

#include "core/object.h"

namespace qvx::platform {

class FormModel;

// The control `name` of the form that `form` points at while it lives.
Object MakeControlObject(std::weak_ptr<FormModel*> form, std::string name);

}  // namespace qvx::platform
