// cCustomFieldsTB: the bar "Quorvix Custom Fields" with a combo box for each
// of the four custom lists; one per accepted explorer folder (while the
// settings show it and any custom field is active) and one per open
// inspector of a supported item.
//
// As the project bar, it copies what it shows into the explorers' shared
// values (s.ribbon.explorer, field by field) or the pool of its inspector
// (s.ribbon.Inspector(strPoolKey).custom); a value chosen in a combo box is
// written at once on what the user has in front of him, free text included.
// A list whose active flag is off has a hidden combo box, left alone.
//
//   auto bar = std::make_shared<cCustomFieldsTB>(s);
//   bar->ouaMonitorApp.Set(app);          // explorers only
//   bar->oueCurrExplorer.Set(explorer);   // or oueCurrInspector
//   bar->subAddButtons();
//   bar->ShowFields(item);
#pragma once

#include <array>
#include <memory>
#include <string>
#include <string_view>

#include "core/event_field.h"
#include "core/variant.h"

namespace qvx {

class AddinState;
struct CustomFieldsToolbarPool;

class cCustomFieldsTB : public std::enable_shared_from_this<cCustomFieldsTB> {
 public:
  explicit cCustomFieldsTB(AddinState& s);
  ~cCustomFieldsTB();
  cCustomFieldsTB(const cCustomFieldsTB&) = delete;
  cCustomFieldsTB& operator=(const cCustomFieldsTB&) = delete;

  // The inspector pool by name; an unknown name changes nothing and reads Empty.
  void SetVariableValue(std::string_view Name, const Variant& Value) noexcept;
  Variant GetRibbonValueFromPool(std::string_view Name) noexcept;

  // Takes the bar down and sweeps every bar of its name; may run again.
  void subRemoveButtons() noexcept;
  // Builds the bar with all four combo boxes, the inactive ones hidden.
  void subAddButtons() noexcept;
  // Shows the item's values of the active lists.
  void ShowFields(const Object& objItem) noexcept;
  // Empties the combo boxes of the active lists.
  void EmptyAll() noexcept;
  // Applies changed settings: which lists show, their entries, the title.
  void UpdateToolbar() noexcept;

  std::string EntryID;
  std::string strPoolKey;  // as cStandardTB's
  Object objExplorerToolbar;
  EventField<cCustomFieldsTB> oueCurrExplorer;
  EventField<cCustomFieldsTB> oueCurrInspector;
  EventField<cCustomFieldsTB> ouaMonitorApp;
  int toolbarUpdates = 0;  // how often UpdateToolbar ran, shown by scenarios

 private:
  // Field 1 to 4.
  EventField<cCustomFieldsTB>& Combo(int field) { return *combos_[field - 1]; }
  CustomFieldsToolbarPool* InspectorPool();
  void SetInspectorValue(int field, std::string_view stem, const Variant& value);
  void cboField_Change(int field);

  AddinState& s_;
  Object cmdTitle;
  EventField<cCustomFieldsTB> cboField1;
  EventField<cCustomFieldsTB> cboField2;
  EventField<cCustomFieldsTB> cboField3;
  EventField<cCustomFieldsTB> cboField4;
  std::array<EventField<cCustomFieldsTB>*, 4> combos_;
  bool blnExplorerHost = false;
};

}  // namespace qvx
