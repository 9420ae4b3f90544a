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

#include "sim/collection.h"
#include "sim/context.h"

namespace qvx::sim {

class SimExplorer;
class SimFolder;
class SimInspector;
class SimItem;

class SimExplorers : public SimCollection<SimExplorer> {
 public:
  explicit SimExplorers(ContextPtr context) : SimCollection(std::move(context)) {}
  std::string TypeName() const override { return "Explorers"; }

  // Adds an explorer on `folder` and raises NewExplorer.
  std::shared_ptr<SimExplorer> Add(const std::shared_ptr<SimFolder>& folder);
  // Adds without an event: windows that were open before anyone listened.
  void AddSilently(const std::shared_ptr<SimExplorer>& explorer) { list_.push_back(explorer); }
  void Remove(const SimExplorer& explorer);

 protected:
  const MemberTable& Members() const override;
  std::span<const std::string_view> EventNames() const override;
  Variant ParentObject() override { return Variant(collectionContext()->Application()); }
};

class SimInspectors : public SimCollection<SimInspector> {
 public:
  explicit SimInspectors(ContextPtr context) : SimCollection(std::move(context)) {}
  std::string TypeName() const override { return "Inspectors"; }

  // Adds an inspector on `item` and raises NewInspector.
  std::shared_ptr<SimInspector> Add(const std::shared_ptr<SimItem>& item);
  void Remove(const SimInspector& inspector);

 protected:
  const MemberTable& Members() const override;
  std::span<const std::string_view> EventNames() const override;
  Variant ParentObject() override { return Variant(collectionContext()->Application()); }
};

}  // namespace qvx::sim
