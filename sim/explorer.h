// SimExplorer: a folder window of the simulated host.
//
// CurrentFolder put (and the world's SwitchFolder) raises BeforeFolderSwitch
// (NewFolder, Cancel by reference); unless cancelled the folder changes, the
// first item of the new folder becomes the selection, and FolderSwitch then
// SelectionChange follow. Select sets the selection and raises
// SelectionChange. CurrentView gives the folder's current View; a put by name
// raises BeforeViewSwitch and ViewSwitch.
#pragma once

#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "sim/window.h"

namespace qvx::sim {

class SimFolder;
class SimItem;
class SimSelection;

class SimExplorer : public SimWindow {
 public:
  SimExplorer(ContextPtr context, std::shared_ptr<SimFolder> folder);
  std::string TypeName() const override { return "Explorer"; }
  std::string Caption() const override;

  const std::shared_ptr<SimFolder>& folder() const { return folder_; }
  // Returns false if a BeforeFolderSwitch handler cancelled.
  bool SwitchFolder(const std::shared_ptr<SimFolder>& folder);
  void Select(std::vector<std::shared_ptr<SimItem>> items);
  const std::vector<std::shared_ptr<SimItem>>& selected() const { return selected_; }
  // A snapshot as Selection gives it, sharing the snapshots' faults.
  std::shared_ptr<SimSelection> Selection();
  const std::shared_ptr<FaultTable>& selectionFaults() const { return selectionFaults_; }
  void SwitchView(std::string_view viewName);

 protected:
  const MemberTable& Members() const override;
  std::span<const std::string_view> EventNames() const override;

 private:
  std::shared_ptr<SimFolder> folder_;
  std::vector<std::shared_ptr<SimItem>> selected_;
  std::shared_ptr<FaultTable> selectionFaults_ = std::make_shared<FaultTable>();
};

}  // namespace qvx::sim
