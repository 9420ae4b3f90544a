// cExplorerClient: the add-in's companion object of one open explorer.
//
// It decides per folder what the explorer shows and owns that explorer's
// bars and menu. The folder tracking and the bars arrive with the command-bar
// interface; for now the client records its explorer and tag, and follows
// the two events that end it: its explorer's Close (the client leaves
// colExplorerClients, and the add-in goes if no explorer is left) and the
// host's Quit (the tear-down). Held by a shared_ptr in colExplorerClients, so
// that its sinks keep it alive while they run.
//
//   auto client = std::make_shared<cExplorerClient>(s);
//   client->oueCurrExplorer.Set(explorer);
//   client->ouaMonitorApp.Set(s.main.objOutlook);
#pragma once

#include <memory>
#include <string>

#include "core/event_field.h"

namespace qvx {

class AddinState;

class cExplorerClient : public std::enable_shared_from_this<cExplorerClient> {
 public:
  explicit cExplorerClient(AddinState& s);

  // Puts the toolbars of the current folder on the explorer.
  void subTrackRequiredFolder() noexcept;
  // Adds the main menu (only the explorer of the start-up gets it).
  void subAddButtons() noexcept;
  // Refreshes the bars after an outside change.
  void UpdateToolbars() noexcept;

  std::string strRemoveTag;
  EventField<cExplorerClient> oueCurrExplorer;
  EventField<cExplorerClient> ouaMonitorApp;
  int toolbarUpdates = 0;  // how often UpdateToolbars ran, shown by scenarios

 private:
  void oueCurrExplorer_Close();
  void ouaMonitorApp_Quit();

  AddinState& s_;
};

}  // namespace qvx
