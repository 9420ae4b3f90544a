// cExplorersEventClient: follows the host's Explorers collection and owns one
// cExplorerClient per explorer, in colExplorerClients under "EXPLORER" and
// the explorer count at its creation ("EXPLORER1").
#pragma once

#include <memory>

#include "core/object.h"

namespace qvx {

class AddinState;

class cExplorersEventClient {
 public:
  // Creates objInspectorsClient on the host's Inspectors, and colExplorerClients.
  explicit cExplorersEventClient(AddinState& s);
  ~cExplorersEventClient();

  // From now on NewExplorer events arrive.
  void SetExplorers(const Object& explorers);
  // Builds one cExplorerClient for oueCurrExplorer.
  void LoadSupportCallsMenu(bool& blnAddButtons) noexcept;
  // Refreshes the bars of every explorer and of the active inspector.
  void UpdateAllDisplayedToolbars() noexcept;

  Object oueCurrExplorer;
  Object oExplorers;

 private:
  void oExplorers_NewExplorer(const Object& explorer) noexcept;

  AddinState& s_;
  Subscription newExplorer_;
};

}  // namespace qvx
