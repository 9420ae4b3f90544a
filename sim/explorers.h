// SimExplorers and SimInspectors: the host's open windows of each kind.
//
// A window is counted from the moment it is added, before it is shown, and
// NewExplorer / NewInspector is raised with it then, as the host does before
// the window appears. Explorers.Add(folder[, displayMode]) makes an explorer
// that isn't displayed yet.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "sim/context.h"
#include "sim/sim_object.h"

namespace qvx::sim {

class SimExplorer;
class SimFolder;
class SimInspector;
class SimItem;

class SimExplorers : public SimObject {
 public:
  explicit SimExplorers(ContextPtr context) : context_(std::move(context)) {}
  std::string TypeName() const override { return "Explorers"; }

  // Adds an explorer on `folder` and raises NewExplorer.
  std::shared_ptr<SimExplorer> Add(const std::shared_ptr<SimFolder>& folder);
  // Adds without an event: windows that were open before anyone listened.
  void AddSilently(const std::shared_ptr<SimExplorer>& explorer) { list_.push_back(explorer); }
  void Remove(const SimExplorer& explorer);
  const std::vector<std::shared_ptr<SimExplorer>>& list() const { return list_; }

 protected:
  const MemberTable& Members() const override;
  std::span<const std::string_view> EventNames() const override;
  std::vector<Variant> Elements() override;

 private:
  ContextPtr context_;
  std::vector<std::shared_ptr<SimExplorer>> list_;
};

class SimInspectors : public SimObject {
 public:
  explicit SimInspectors(ContextPtr context) : context_(std::move(context)) {}
  std::string TypeName() const override { return "Inspectors"; }

  // Adds an inspector on `item` and raises NewInspector.
  std::shared_ptr<SimInspector> Add(const std::shared_ptr<SimItem>& item);
  void Remove(const SimInspector& inspector);
  const std::vector<std::shared_ptr<SimInspector>>& list() const { return list_; }

 protected:
  const MemberTable& Members() const override;
  std::span<const std::string_view> EventNames() const override;
  std::vector<Variant> Elements() override;

 private:
  ContextPtr context_;
  std::vector<std::shared_ptr<SimInspector>> list_;
};

}  // namespace qvx::sim
