#include "commandbars/explorer_client.h"

#include "state/addin_state.h"

namespace qvx {

cExplorerClient::cExplorerClient(AddinState& s)
    : oueCurrExplorer(*this, s), ouaMonitorApp(*this, s), s_(s) {
  oueCurrExplorer.On("Close", "ExplorerClient.Close", [](cExplorerClient& self, Line&, EventArgs&) {
    self.oueCurrExplorer_Close();
  });
  ouaMonitorApp.On("Quit", "ExplorerClient.Quit",
                   [](cExplorerClient& self, Line&, EventArgs&) { self.ouaMonitorApp_Quit(); });
}

void cExplorerClient::subTrackRequiredFolder() noexcept {}
void cExplorerClient::subAddButtons() noexcept {}
void cExplorerClient::UpdateToolbars() noexcept {
  ++toolbarUpdates;
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
