// SimItems: the items of one folder, in the order they were saved into it.
//
// Count, Item (1-based), Add (an unsaved item of the folder's kind, or of the
// given item type or message class), GetFirst/GetNext/GetLast, Remove and
// enumeration; the events ItemAdd, ItemChange and ItemRemove. The world and
// the items call Enter, Changed and Remove, which raise those events.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "sim/collection.h"

namespace qvx::sim {

class SimFolder;
class SimItem;

class SimItems : public SimCollection<SimItem> {
 public:
  SimItems(ContextPtr context, std::weak_ptr<SimFolder> folder)
      : SimCollection(std::move(context)), folder_(std::move(folder)) {}
  std::string TypeName() const override { return "Items"; }

  bool Contains(const SimItem& item) const;
  std::shared_ptr<SimItem> FindByEntryId(std::string_view entryId) const;

  // A saved item arrives (ItemAdd), changes (ItemChange) or goes (ItemRemove).
  void Enter(const std::shared_ptr<SimItem>& item);
  void Changed(const std::shared_ptr<SimItem>& item);
  void Remove(const SimItem& item);
  // Puts a saved item in without events: what was there before anyone listened.
  void Place(const std::shared_ptr<SimItem>& item);

 protected:
  const MemberTable& Members() const override;
  std::span<const std::string_view> EventNames() const override;
  Variant ParentObject() override;
  // The default property of an item is its Subject.
  Variant ItemByKey(const Variant& key) override;

 private:
  Variant Next();

  std::weak_ptr<SimFolder> folder_;
  size_t cursor_ = 0;  // of GetFirst/GetNext
  // The items of list_, so that saving an item does not search the folder.
  std::unordered_set<const SimItem*> members_;
};

}  // namespace qvx::sim
