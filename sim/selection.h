// SimSelection: what Explorer.Selection hands out: a snapshot of the items
// selected at that moment, as the host's is. Snapshots of one explorer share
// one FaultTable, so a fault set on any of them applies to all that follow.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "sim/collection.h"

namespace qvx::sim {

class SimItem;
class SimExplorer;

class SimSelection : public SimCollection<SimItem> {
 public:
  SimSelection(ContextPtr context, std::vector<std::shared_ptr<SimItem>> items,
               std::weak_ptr<SimExplorer> explorer);
  std::string TypeName() const override { return "Selection"; }
  const std::vector<std::shared_ptr<SimItem>>& items() const { return list(); }

 protected:
  const MemberTable& Members() const override;
  Variant ParentObject() override;

 private:
  std::weak_ptr<SimExplorer> explorer_;
};

}  // namespace qvx::sim
