// The ribbon's copies of what the command bars show.
//
// The toolbar objects decide what is enabled, shown and captioned; the ribbon
// only reads their copies here and writes a choice back. All explorers share
// one set of values (the last explorer to act sets what every explorer ribbon
// shows); each inspector of an eligible item has pools of its own, keyed by
// its item's EntryID, reached by name as the toolbar objects'
// SetVariableValue and GetRibbonValueFromPool reach them.
//
//   s.ribbon.explorer.PROJECT_ENABLED = true;
//   StandardToolbarPool& pool = s.ribbon.Inspector(entryId).standard;  // made on first use
//   pool.SetVariableValue("REPORT_BUTTON_INSPECTOR_CAPTION", Variant("Publish"));
//   pool.GetRibbonValueFromPool("PROJECT_INSPECTOR_ENABLED");        // Variant(false)
//   pool.GetRibbonValueFromPool("NO_SUCH_NAME");                      // Empty
//
// ReadPooledValue and WritePooledValue are the one way the toolbar objects and
// the ribbon reach a pool by name under a trap of their own.
#pragma once

#include <string>
#include <string_view>
#include <type_traits>

#include "core/ordered_dictionary.h"
#include "core/trap.h"
#include "core/variant.h"

namespace qvx {

// The explorer ribbon's values; all start False or empty.
struct ExplorerRibbonValues {
  bool COMMON_CONTROLS_VISIBLE = false;
  bool CUSTOM_FIELDS_VISIBLE = false;
  bool GROUP_CALENDAR_VISIBLE = false;
  bool GROUP_TASK_VISIBLE = false;
  std::string SELECTED_PROJECT_VALUE;
  // A project change empties it when the activity doesn't belong to the new project.
  std::string SELECTED_ACTIVITY_VALUE;
  std::string SELECTED_CUSTOM_FIELD1_VALUE;
  std::string SELECTED_CUSTOM_FIELD2_VALUE;
  std::string SELECTED_CUSTOM_FIELD3_VALUE;
  std::string SELECTED_CUSTOM_FIELD4_VALUE;
  bool PROJECT_ENABLED = false;
  bool ACTIVITY_ENABLED = false;
  bool CUSTOM_FIELD1_ENABLED = false;
  bool CUSTOM_FIELD2_ENABLED = false;
  bool CUSTOM_FIELD3_ENABLED = false;
  bool CUSTOM_FIELD4_ENABLED = false;
  bool blnCustomField1Visible = false;
  bool blnCustomField2Visible = false;
  bool blnCustomField3Visible = false;
  bool blnCustomField4Visible = false;
  bool REPORT_BUTTON_VISIBLE = false;
  bool WITHDRAW_BUTTON_VISIBLE = false;
  std::string REPORT_BUTTON_CAPTION;
  std::string WITHDRAW_BUTTON_CAPTION;
  std::string LAST_VIEW_NAME;  // the views menu's last choice; nothing reads it

  // Custom field `field` (1 to 4): its value, enabled and shown flags.
  std::string& SelectedCustomFieldValue(int field);
  bool& CustomFieldEnabled(int field);
  bool& CustomFieldVisible(int field);
};

// The pool of an inspector's standard toolbar.
struct StandardToolbarPool {
  std::string SELECTED_INSPECTOR_PROJECT_VALUE;
  std::string SELECTED_INSPECTOR_ACTIVITY_VALUE;
  bool PROJECT_INSPECTOR_ENABLED = false;
  bool ACTIVITY_INSPECTOR_ENABLED = false;
  bool WITHDRAW_BUTTON_INSPECTOR_VISIBLE = false;
  bool REPORT_BUTTON_INSPECTOR_VISIBLE = false;
  std::string WITHDRAW_BUTTON_INSPECTOR_CAPTION;
  std::string REPORT_BUTTON_INSPECTOR_CAPTION;
  bool GROUP_CALENDAR_INSPECTOR_VISIBLE = false;
  bool GROUP_TASK_INSPECTOR_VISIBLE = false;

  // Assigns the value of that name: text as text, a flag as boolean. An
  // unknown name is ignored; a value without that form throws its conversion
  // failure.
  void SetVariableValue(std::string_view name, const Variant& value);
  // The value of that name, text as text and a flag as boolean; Empty for an
  // unknown name.
  Variant GetRibbonValueFromPool(std::string_view name) const;
};

// The pool of an inspector's custom fields toolbar; as above.
struct CustomFieldsToolbarPool {
  std::string SELECTED_INSPECTOR_CUSTOM_FIELD1_VALUE;
  std::string SELECTED_INSPECTOR_CUSTOM_FIELD2_VALUE;
  std::string SELECTED_INSPECTOR_CUSTOM_FIELD3_VALUE;
  std::string SELECTED_INSPECTOR_CUSTOM_FIELD4_VALUE;
  bool CUSTOM_FIELD1_INSPECTOR_ENABLED = false;
  bool CUSTOM_FIELD2_INSPECTOR_ENABLED = false;
  bool CUSTOM_FIELD3_INSPECTOR_ENABLED = false;
  bool CUSTOM_FIELD4_INSPECTOR_ENABLED = false;
  bool blnCustomField1VisibleInspector = false;
  bool blnCustomField2VisibleInspector = false;
  bool blnCustomField3VisibleInspector = false;
  bool blnCustomField4VisibleInspector = false;

  void SetVariableValue(std::string_view name, const Variant& value);
  Variant GetRibbonValueFromPool(std::string_view name) const;
};

// The two pools of one inspector.
struct InspectorRibbonPools {
  StandardToolbarPool standard;
  CustomFieldsToolbarPool custom;
};

struct RibbonState {
  ExplorerRibbonValues explorer;
  // By the EntryID of the inspector's item.
  OrderedDictionary<InspectorRibbonPools> inspectors;

  // The pools of the inspector showing `entryId`, made empty on first use.
  InspectorRibbonPools& Inspector(std::string_view entryId);
  // The pools of `entryId`, or nullptr if it has none.
  const InspectorRibbonPools* FindInspector(std::string_view entryId) const;
  InspectorRibbonPools* FindInspector(std::string_view entryId);
  // Forgets the pools of `entryId` (its inspector has closed).
  void DropInspector(std::string_view entryId);
};

// The pool that `findPool` gives, or nullptr; a finder that takes the Line
// sets the statement numbers itself, any other runs at statement 10.
template <class FindPool>
auto* FoundPool(FindPool& findPool, Line& line) {
  if constexpr (std::is_invocable_v<FindPool&, Line&>) {
    return findPool(line);
  } else {
    line = 10;
    return findPool();
  }
}

// The value `name` of the pool that `findPool` gives, trapped under `label`:
// Empty when it gives nullptr or fails.
//
//   ReadPooledValue(s, "StandardToolbar.GetRibbonValueFromPool", name,
//                   [&] { return InspectorPool(); });
template <class FindPool>
Variant ReadPooledValue(FailureSink& sink, std::string_view label, std::string_view name,
                        FindPool&& findPool) noexcept {
  return TrappedResult<Variant>(sink, label, [&](Line& line, Variant& result) {
    if (const auto* pool = FoundPool(findPool, line)) result = pool->GetRibbonValueFromPool(name);
  });
}

// Writes `value` as `name` into the pool that `findPool` gives, if any,
// trapped under `label`.
template <class FindPool>
void WritePooledValue(FailureSink& sink, std::string_view label, std::string_view name,
                      const Variant& value, FindPool&& findPool) noexcept {
  Trapped(sink, label, [&](Line& line) {
    if (auto* pool = FoundPool(findPool, line)) pool->SetVariableValue(name, value);
  });
}

}  // namespace qvx
