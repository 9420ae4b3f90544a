// cExplorersEventClient: follows the host's Explorers collection and owns one
// cExplorerClient per explorer, in colExplorerClients under "EXPLORER" and
// the explorer count at its creation ("EXPLORER1"). Held by a shared_ptr
// (objExplorersClient), so that its sinks keep it alive.
#pragma once

#include <memory>

#include "core/event_field.h"

namespace qvx {

class AddinState;

class cExplorersEventClient : public std::enable_shared_from_this<cExplorersEventClient> {
 public:
  // Creates objInspectorsClient on the host's Inspectors, and colExplorerClients.
  explicit cExplorersEventClient(AddinState& s);
  ~cExplorersEventClient();

  // Builds one cExplorerClient for oueCurrExplorer.
  void LoadSupportCallsMenu(bool& blnAddButtons) noexcept;
  // Refreshes the bars of every explorer and of the active inspector.
  void UpdateAllDisplayedToolbars() noexcept;

  Object oueCurrExplorer;
  // The host's Explorers; NewExplorer arrives once it is set.
  EventField<cExplorersEventClient> oExplorers;

 private:
  void oExplorers_NewExplorer(Line& line, const Object& explorer);

  AddinState& s_;
};

}  // namespace qvx
