// SimSelection: what Explorer.Selection hands out: a snapshot of the items
// selected at that moment, as the host's is. Snapshots of one explorer share
// one FaultTable, so a fault set on any of them applies to all that follow.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "sim/sim_object.h"

namespace qvx::sim {

class SimItem;
class SimExplorer;

class SimSelection : public SimObject {
 public:
  SimSelection(std::vector<std::shared_ptr<SimItem>> items, std::weak_ptr<SimExplorer> explorer)
      : items_(std::move(items)), explorer_(std::move(explorer)) {}
  std::string TypeName() const override { return "Selection"; }
  const std::vector<std::shared_ptr<SimItem>>& items() const { return items_; }

 protected:
  const MemberTable& Members() const override;
  std::vector<Variant> Elements() override;

 private:
  std::vector<std::shared_ptr<SimItem>> items_;
  std::weak_ptr<SimExplorer> explorer_;
};

}  // namespace qvx::sim
