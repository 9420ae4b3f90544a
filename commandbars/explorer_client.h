// cExplorerClient: the add-in's companion object of one open explorer.
//
// It decides per folder what the explorer shows and owns that explorer's
// bars and menu. The folder tracking and the bars arrive with the command-bar
// interface; for now the client records its explorer and tag.
#pragma once

#include <string>

#include "core/object.h"

namespace qvx {

class AddinState;

class cExplorerClient {
 public:
  explicit cExplorerClient(AddinState& s) : s_(s) {}

  // Puts the toolbars of the current folder on the explorer.
  void subTrackRequiredFolder() noexcept;
  // Adds the main menu (only the explorer of the start-up gets it).
  void subAddButtons() noexcept;
  // Refreshes the bars after an outside change.
  void UpdateToolbars() noexcept;

  std::string strRemoveTag;
  Object oueCurrExplorer;
  Object ouaMonitorApp;
  int toolbarUpdates = 0;  // how often UpdateToolbars ran, shown by scenarios

 private:
  AddinState& s_;
};

}  // namespace qvx
