// SimInspector: an item window of the simulated host. CurrentItem is the
// item it shows; Close(SaveMode) saves first for olSave (0).
#pragma once

#include <array>
#include <memory>
#include <string>

#include "sim/window.h"

namespace qvx::sim {

class SimItem;

class SimInspector : public SimWindow {
 public:
  SimInspector(ContextPtr context, std::shared_ptr<SimItem> item)
      : SimWindow(std::move(context)), item_(std::move(item)) {}
  std::string TypeName() const override { return "Inspector"; }
  std::string Caption() const override;
  const std::shared_ptr<SimItem>& item() const { return item_; }

 protected:
  const MemberTable& Members() const override;
  std::span<const std::string_view> EventNames() const override;

 private:
  std::shared_ptr<SimItem> item_;
};

}  // namespace qvx::sim
