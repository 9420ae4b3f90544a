// The steps that fill a combo box from a list, shared by cSingleList and
// cTasksPerProject (the activities of a project).
//
// The control is reached by name (Text, Clear, AddItem, ListCount, List,
// ListIndex), so that a form's combo box and an Office command bar combo box
// serve alike. Failures are thrown to the caller's trap, except in the final
// selection, whose failures are ignored and cleared.
//
//   FillComboList(s, line, control, value, addBlank, dicList,
//                 [](const auto& entry) -> const std::string& { return entry.value; });
#pragma once

#include <string>

#include "core/object.h"
#include "core/text.h"
#include "core/trap.h"
#include "core/variant.h"

namespace qvx {

// Steps 5 and 6: the text the control showed before wins and is written back
// into Value; then Value is shown, or, where the control's text is read-only,
// its row is selected.
void SelectComboValue(FailureSink& s, Line& line, const Object& Control, const std::string& shown,
                      std::string& Value);

// Remembers the shown text, clears the control, adds every entry whose
// trimmed text is not empty (untrimmed, in order), then a blank row last when
// AddBlank, and selects Value.
template <class Entries, class TextOf>
void FillComboList(FailureSink& s, Line& line, const Object& Control, std::string& Value,
                   bool AddBlank, const Entries& entries, TextOf textOf) {
  line = 10;
  const std::string shown = Control.Get("Text").ToText();
  line = 20;
  Control.Call("Clear");
  line = 30;
  for (const auto& entry : entries) {
    const std::string& text = textOf(entry);
    if (!Trim(text).empty()) Control.Call("AddItem", {Variant(text)});
  }
  line = 40;
  if (AddBlank) Control.Call("AddItem", {Variant("")});
  SelectComboValue(s, line, Control, shown, Value);
}

}  // namespace qvx
