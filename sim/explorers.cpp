#include "sim/explorers.h"

#include <algorithm>
#include <array>

#include "sim/application.h"
#include "sim/collection.h"
#include "sim/explorer.h"
#include "sim/folder.h"
#include "sim/inspector.h"
#include "sim/item.h"

namespace qvx::sim {

// ---- Explorers ----

std::shared_ptr<SimExplorer> SimExplorers::Add(const std::shared_ptr<SimFolder>& folder) {
  auto explorer = std::make_shared<SimExplorer>(collectionContext(), folder);
  list_.push_back(explorer);
  EventArgs args{explorer->AsVariant()};
  Raise("NewExplorer", args);
  return explorer;
}

void SimExplorers::Remove(const SimExplorer& explorer) {
  std::erase_if(list_, [&](const auto& e) { return e.get() == &explorer; });
}

std::span<const std::string_view> SimExplorers::EventNames() const {
  static constexpr std::array<std::string_view, 1> kEvents{"NewExplorer"};
  return kEvents;
}

const MemberTable& SimExplorers::Members() const {
  static const MemberTable table = [] {
    MemberTable t = CollectionMembers();
    Define<SimExplorers>(t).Method("Add", 1, 2, [](SimExplorers& c, Args& a) {
      return c.Add(SimArg<SimFolder>(a[0]))->AsVariant();
    });
    return t;
  }();
  return table;
}

// ---- Inspectors ----

std::shared_ptr<SimInspector> SimInspectors::Add(const std::shared_ptr<SimItem>& item) {
  auto inspector = std::make_shared<SimInspector>(collectionContext(), item);
  list_.push_back(inspector);
  EventArgs args{inspector->AsVariant()};
  Raise("NewInspector", args);
  return inspector;
}

void SimInspectors::Remove(const SimInspector& inspector) {
  std::erase_if(list_, [&](const auto& i) { return i.get() == &inspector; });
}

std::span<const std::string_view> SimInspectors::EventNames() const {
  static constexpr std::array<std::string_view, 1> kEvents{"NewInspector"};
  return kEvents;
}

const MemberTable& SimInspectors::Members() const {
  static const MemberTable table = [] {
    MemberTable t = CollectionMembers();
    Define<SimInspectors>(t).Method("Add", 1, 1, [](SimInspectors& c, Args& a) {
      return c.Add(SimArg<SimItem>(a[0]))->AsVariant();
    });
    return t;
  }();
  return table;
}

}  // namespace qvx::sim
