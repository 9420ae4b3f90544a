#include "commandbars/explorer_client.h"

namespace qvx {

void cExplorerClient::subTrackRequiredFolder() noexcept {}
void cExplorerClient::subAddButtons() noexcept {}
void cExplorerClient::UpdateToolbars() noexcept {
  ++toolbarUpdates;
}

}  // namespace qvx
