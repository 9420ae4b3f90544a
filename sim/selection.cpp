#include "sim/selection.h"

#include "sim/application.h"
#include "sim/collection.h"
#include "sim/explorer.h"
#include "sim/item.h"

namespace qvx::sim {

SimSelection::SimSelection(ContextPtr context, std::vector<std::shared_ptr<SimItem>> items,
                           std::weak_ptr<SimExplorer> explorer)
    : SimCollection(std::move(context)), explorer_(std::move(explorer)) {
  list_ = std::move(items);
}

Variant SimSelection::ParentObject() {
  return OrNothing(explorer_.lock());
}

const MemberTable& SimSelection::Members() const {
  static const MemberTable table = [] {
    MemberTable t = CollectionMembers();
    Define<SimSelection>(t)
        .Get("Location", [](SimSelection&) { return Variant(int32_t{0}); })  // olViewList
        .Get("Class", [](SimSelection&) { return Variant(int32_t{74}); });
    return t;
  }();
  return table;
}

}  // namespace qvx::sim
