// cExplorerClient: the add-in's presence in one open explorer.
//
// It decides from the folder shown and the settings whether the explorer's
// bars exist at all (subTrackRequiredFolder), follows the selection and tells
// the bars which item to show, and owns the explorer's menu. Its decisions
// also steer the explorer ribbon: the values it and its bars write in
// s.ribbon.explorer are what the ribbon's callbacks read.
//
// Made by the explorers' client (held by a shared_ptr: the explorer's events
// keep it alive), which sets the two windows and then calls
// subTrackRequiredFolder:
//
//   auto client = std::make_shared<cExplorerClient>(s);
//   client->oueCurrExplorer.Set(explorer);
//   client->ouaMonitorApp.Set(app);
//   client->subTrackRequiredFolder();   // bars for the folder shown, or none
//   client->subAddButtons();            // the menu, where the caller wants one
#pragma once

#include <array>
#include <memory>
#include <string>

#include "core/event_field.h"

namespace qvx {

class AddinState;
class cStandardTB;
class cCustomFieldsTB;

class cExplorerClient : public std::enable_shared_from_this<cExplorerClient> {
 public:
  explicit cExplorerClient(AddinState& s);
  ~cExplorerClient();
  cExplorerClient(const cExplorerClient&) = delete;
  cExplorerClient& operator=(const cExplorerClient&) = delete;

  // Takes the menu down.
  void subRemoveButtons() noexcept;
  // Whether the active menu bar shows the add-in's menu with its entries.
  void DoesMenuExists(bool& blnExists) noexcept;
  // Builds the menu, unless an explorer's menu bar shows it already.
  void subAddButtons() noexcept;
  // Deletes the bars and builds them anew for the current folder, if the
  // folder is one the add-in works in.
  void subTrackRequiredFolder() noexcept;
  // Brings the existing bars up to date with changed settings.
  void UpdateToolbars() noexcept;

  std::string strRemoveTag;  // the key of this object in colExplorerClients
  Object mnuExplorer;        // the explorer's active menu bar
  EventField<cExplorerClient> oueCurrExplorer;
  EventField<cExplorerClient> ouaMonitorApp;
  std::shared_ptr<cStandardTB> objStandardTB;
  // May exist without the project bar: UpdateToolbars makes it in any task
  // or calendar folder, refused or not, until the next folder switch.
  std::shared_ptr<cCustomFieldsTB> objCustomFieldsTB;
  // True while the current folder is one in which the add-in works.
  bool blnToolbarsLoaded = false;
  // The first selected item at the last selection change; compared by EntryID.
  Object objLastSelected;
  int toolbarUpdates = 0;  // how often UpdateToolbars ran, shown by scenarios

 private:
  void DeclareMenuHandlers(AddinState& s);
  Object FindMenu();
  void RemoveMenu() noexcept;
  void RemoveStandardToolbar();
  void RemoveCustomFieldsToolbar();
  void AddCustomFieldsToolbar();
  bool WantsCustomFieldsToolbar();
  void oueCurrExplorer_SelectionChange();
  void oueCurrExplorer_Close();
  void ouaMonitorApp_Quit();

  AddinState& s_;
  // The menu and its twelve entries, from the top; the entries are empty
  // when another explorer's menu was there already.
  Object mnuClientPopup;
  std::array<std::unique_ptr<EventField<cExplorerClient>>, 12> menuButtons_;
};

}  // namespace qvx
