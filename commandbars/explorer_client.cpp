#include "commandbars/explorer_client.h"

#include "commandbars/custom_fields_toolbar.h"
#include "commandbars/standard_toolbar.h"
#include "core/host_constants.h"
#include "reporting/current_selection.h"
#include "reporting/item_filters.h"
#include "settings/my_settings.h"
#include "state/addin_state.h"

namespace qvx {

cExplorerClient::cExplorerClient(AddinState& s)
    : oueCurrExplorer(*this, s), ouaMonitorApp(*this, s), s_(s) {
  DeclareMenuHandlers(s);
  oueCurrExplorer.On(
      "SelectionChange", "ExplorerClient.SelectionChange",
      [](cExplorerClient& self, Line&, EventArgs&) { self.oueCurrExplorer_SelectionChange(); });
  oueCurrExplorer.On(
      "FolderSwitch", "ExplorerClient.FolderSwitch",
      [](cExplorerClient& self, Line&, EventArgs&) { self.subTrackRequiredFolder(); });
  // Back in this explorer, the same item selected again shows anew.
  oueCurrExplorer.On(
      "Deactivate", "ExplorerClient.Deactivate",
      [](cExplorerClient& self, Line&, EventArgs&) { self.objLastSelected.Release(); });
  oueCurrExplorer.On("Close", "ExplorerClient.Close", [](cExplorerClient& self, Line&, EventArgs&) {
    self.oueCurrExplorer_Close();
  });
  ouaMonitorApp.On("Quit", "ExplorerClient.Quit",
                   [](cExplorerClient& self, Line&, EventArgs&) { self.ouaMonitorApp_Quit(); });
}

cExplorerClient::~cExplorerClient() {
  subRemoveButtons();
  // The bars take themselves down at the explorer's Close, or as they end.
  objStandardTB.reset();
  objCustomFieldsTB.reset();
  oueCurrExplorer.Release();
  ouaMonitorApp.Release();
}

void cExplorerClient::RemoveStandardToolbar() {
  if (!objStandardTB) return;
  objStandardTB->subRemoveButtons();
  objStandardTB.reset();
}

void cExplorerClient::RemoveCustomFieldsToolbar() {
  if (!objCustomFieldsTB) return;
  objCustomFieldsTB->subRemoveButtons();
  objCustomFieldsTB.reset();
}

bool cExplorerClient::WantsCustomFieldsToolbar() {
  return s_.main.Settings().showCustomFieldsToolbar != 0 && AreAllCustomFieldsActive(s_);
}

void cExplorerClient::AddCustomFieldsToolbar() {
  objCustomFieldsTB = std::make_shared<cCustomFieldsTB>(s_);
  objCustomFieldsTB->ouaMonitorApp.Set(s_.main.objOutlook);
  objCustomFieldsTB->oueCurrExplorer.Set(oueCurrExplorer.object());
  objCustomFieldsTB->subAddButtons();
}

void cExplorerClient::subTrackRequiredFolder() noexcept {
  AddinState& s = s_;
  ExplorerRibbonValues& x = s.ribbon.explorer;
  Quietly(s.err, [&] { RemoveStandardToolbar(); });
  x.COMMON_CONTROLS_VISIBLE = false;
  x.CUSTOM_FIELDS_VISIBLE = false;
  x.GROUP_CALENDAR_VISIBLE = true;
  x.GROUP_TASK_VISIBLE = true;
  Quietly(s.err, [&] { RemoveCustomFieldsToolbar(); });
  blnToolbarsLoaded = false;
  Trapped(s, "ExplorerClient.SwitchFolders", [&](Line& line) {
    line = 10;
    Object folder = oueCurrExplorer.object().Get("CurrentFolder").ToObject();
    int32_t type = -1;
    if (folder) type = folder.Get("DefaultItemType").ToLong();
    if (type == host::olAppointmentItem || type == host::olTaskItem) {
      line = 20;
      const cMySettings& settings = s.main.Settings();
      const bool tasks = type == host::olTaskItem;
      // A refused folder leaves the ribbon as it is: only another kind of
      // folder or an accepted one invalidates it.
      if (tasks && settings.AllowTaskItems == 0) {
        x.GROUP_TASK_VISIBLE = false;
        return;
      }
      if (!tasks && settings.AllowAppointmentItems == 0) {
        x.GROUP_CALENDAR_VISIBLE = false;
        return;
      }
      line = 30;
      if (!IsDefaultFolder(s, folder)) {
        (tasks ? x.GROUP_TASK_VISIBLE : x.GROUP_CALENDAR_VISIBLE) = false;
        return;
      }
      line = 40;
      blnToolbarsLoaded = true;
      objStandardTB = std::make_shared<cStandardTB>(s);
      objStandardTB->ouaMonitorApp.Set(s.main.objOutlook);
      objStandardTB->oueCurrExplorer.Set(oueCurrExplorer.object());
      objStandardTB->ouiItems.Set(folder.Get("Items").ToObject());
      objStandardTB->subAddButtons();
      line = 50;
      if (WantsCustomFieldsToolbar()) {
        x.CUSTOM_FIELDS_VISIBLE = true;
        AddCustomFieldsToolbar();
      }
    }
    line = 60;
    s.upward().subInvalidateRibbon();
  });
}

void cExplorerClient::UpdateToolbars() noexcept {
  AddinState& s = s_;
  ++toolbarUpdates;
  Trapped(s, "ExplorerClient.UpdateToolbars", [&](Line& line) {
    line = 10;
    s.ribbon.explorer.CUSTOM_FIELDS_VISIBLE = false;
    s.ribbon.explorer.COMMON_CONTROLS_VISIBLE = false;
    line = 20;
    const Object folder = oueCurrExplorer.object().Get("CurrentFolder").ToObject();
    if (folder) {
      const int32_t type = folder.Get("DefaultItemType").ToLong();
      if (type == host::olTaskItem || type == host::olAppointmentItem) {
        line = 30;
        if (objStandardTB) objStandardTB->UpdateToolbar();
        line = 40;
        if (WantsCustomFieldsToolbar()) {
          if (!objCustomFieldsTB) AddCustomFieldsToolbar();
          s.ribbon.explorer.CUSTOM_FIELDS_VISIBLE = true;
          objCustomFieldsTB->UpdateToolbar();
        } else {
          RemoveCustomFieldsToolbar();
        }
      }
    }
    line = 50;
    s.upward().subInvalidateRibbon();
  });
}

void cExplorerClient::oueCurrExplorer_SelectionChange() {
  AddinState& s = s_;
  if (s.tagging.blnTaggingInProgress) return;
  // From here a failing statement is skipped and the next one runs: an item
  // that refuses its EntryID counts as an empty selection.
  ExplorerRibbonValues& x = s.ribbon.explorer;
  const auto entryIdOf = [&](const Object& item) {
    std::string id;
    if (item) IgnoreFailure(s.err, [&] { id = item.Get("EntryID").ToText(); });
    return id;
  };
  const std::string oldId = entryIdOf(objLastSelected);
  objLastSelected = Main::GetCurrentSelectedItemExplorer(s);
  const std::string newId = entryIdOf(objLastSelected);
  // A repeated event for the same item does nothing; an empty selection is
  // shown each time.
  if (oldId == newId && !newId.empty()) return;
  s.err.Clear();
  if (!blnToolbarsLoaded) return;
  IgnoreFailure(s.err, [&] { objStandardTB->EmptyAll(); });
  const bool customShown = [&] {
    bool shown = false;
    IgnoreFailure(s.err, [&] { shown = s.main.Settings().showCustomFieldsToolbar != 0; });
    return shown && objCustomFieldsTB;
  }();
  if (customShown) objCustomFieldsTB->EmptyAll();
  int32_t count = -1;
  IgnoreFailure(s.err, [&] {
    count = oueCurrExplorer.object().Get("Selection").ToObject().Get("Count").ToLong();
  });
  if (count == 1) {
    const Object item = Main::GetCurrentSelectedItem(s, false);
    if (item && IsSupportMessageClass(s, item)) {
      if (objStandardTB) {
        IgnoreFailure(s.err, [&] { objStandardTB->EntryID = item.Get("EntryID").ToText(); });
        objStandardTB->ShowFields(item);
      }
      if (customShown) {
        IgnoreFailure(s.err, [&] { objCustomFieldsTB->EntryID = item.Get("EntryID").ToText(); });
        objCustomFieldsTB->ShowFields(item);
      }
    }
  } else if (count >= 2) {
    if (objStandardTB) objStandardTB->DisableWithdrawReportButton();
  } else if (count == 0) {
    x.SELECTED_PROJECT_VALUE.clear();
    x.SELECTED_ACTIVITY_VALUE.clear();
    x.PROJECT_ENABLED = x.ACTIVITY_ENABLED = false;
    for (int field = 1; field <= 4; ++field) x.CustomFieldEnabled(field) = false;
    x.REPORT_BUTTON_VISIBLE = x.WITHDRAW_BUTTON_VISIBLE = false;
  }
  s.upward().subInvalidateRibbon();
}

// Leaving the collection ends this client; its handler keeps it alive until
// the tear-down below has run.
void cExplorerClient::oueCurrExplorer_Close() {
  Quietly(s_.err, [&] {
    if (s_.main.colExplorerClients) s_.main.colExplorerClients->Remove(strRemoveTag);
  });
  s_.upward().subShutDownOutlook();
}

void cExplorerClient::ouaMonitorApp_Quit() {
  s_.upward().subKillObjects();
}

}  // namespace qvx
