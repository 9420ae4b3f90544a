// cStandardTB: the bar "Quorvix" on which the user sets a project and an
// activity on the current item and reports it; one per accepted explorer
// folder and one per open inspector of a supported item.
//
// The bar decides what is shown, enabled and captioned, and copies that into
// the ribbon's values: the explorers' shared set (s.ribbon.explorer) or the
// pool of its inspector (s.ribbon.Inspector(strPoolKey).standard). A value
// chosen in a combo box is written at once on what the user has in front of
// him (Actions::GetCurrentSelectedItem), free text included.
//
// Held by a shared_ptr: its controls' and windows' events keep it alive.
//
//   auto bar = std::make_shared<cStandardTB>(s);
//   bar->ouaMonitorApp.Set(app);            // explorers only
//   bar->oueCurrExplorer.Set(explorer);     // or oueCurrInspector
//   bar->ouiItems.Set(folder.Get("Items").ToObject());   // explorers only
//   bar->subAddButtons();
//   bar->EntryID = item.Get("EntryID").ToText();
//   bar->ShowFields(item);                  // "Publish", or "Update #17" ...
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "core/event_field.h"
#include "core/variant.h"

namespace qvx {

class AddinState;
class cViews;
struct StandardToolbarPool;

class cStandardTB : public std::enable_shared_from_this<cStandardTB> {
 public:
  explicit cStandardTB(AddinState& s);
  ~cStandardTB();
  cStandardTB(const cStandardTB&) = delete;
  cStandardTB& operator=(const cStandardTB&) = delete;

  // The inspector pool by name (as the ribbon reaches it): an unknown name
  // changes nothing, and reads as Empty. Only an inspector's bar has a pool.
  void SetVariableValue(std::string_view Name, const Variant& Value) noexcept;
  Variant GetRibbonValueFromPool(std::string_view Name) noexcept;

  // Takes the bar down (its position saved first) and sweeps every bar of
  // its name from the window; may run any number of times.
  void subRemoveButtons() noexcept;
  // Builds the bar on the window set before; hidden on hosts of version 14+.
  void subAddButtons() noexcept;
  // Shows the item's values and report state, and copies them to the ribbon.
  // Does nothing while a project is being written.
  void ShowFields(const Object& objItem) noexcept;
  // Empties both combo boxes (a new or empty selection).
  void EmptyAll() noexcept;
  // Several items selected: "Publish" and no withdraw button.
  void DisableWithdrawReportButton() noexcept;
  // Applies changed settings: titles, lists, whether the combo boxes show.
  void UpdateToolbar() noexcept;

  std::string EntryID;  // the item shown; the guard of the tagging calls
  // The key of the inspector's pools in s.ribbon; the item's EntryID, taken
  // at subAddButtons unless the creator set it.
  std::string strPoolKey;
  Object objExplorerToolbar;
  EventField<cStandardTB> oueCurrExplorer;
  EventField<cStandardTB> oueCurrInspector;
  EventField<cStandardTB> ouaMonitorApp;
  EventField<cStandardTB> ouiItems;
  int toolbarUpdates = 0;  // how often UpdateToolbar ran, shown by scenarios

 private:
  void AddControls(Line& line, const Object& controls);
  void CopyButtonsToPools();
  StandardToolbarPool* InspectorPool();

  void cboProject_Change();
  void cboTask_Change();
  void cmdReport_Click();
  void cmdWithdrawReport_Click();
  void cboStaticFields_Click();
  void ouiItems_ItemChange(const Object& Item);
  void oueCurrExplorer_Close();
  void oueCurrInspector_Close();
  void ouaMonitorApp_Quit();

  AddinState& s_;
  Object cmdTitle;
  EventField<cStandardTB> cboProject;
  EventField<cStandardTB> cboTask;
  EventField<cStandardTB> cmdReport;
  EventField<cStandardTB> cmdWithdrawReport;
  EventField<cStandardTB> cboStaticFields;  // a button, despite its name
  std::shared_ptr<cViews> objViews;         // the views pop-up; explorer bars only
  bool blnFieldsShown = false;
  bool blnExplorerHost = false;
  // What this object last put on its controls, so that the copies to the
  // ribbon cost no host call.
  struct Shown {
    std::string reportCaption;
    bool reportVisible = true;
    bool reportEnabled = true;
    std::string withdrawCaption;
    bool withdrawVisible = false;
    bool projectEnabled = true;
    bool activityEnabled = true;
  } shown_;
};

}  // namespace qvx
