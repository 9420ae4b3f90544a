#include "sim/items.h"

#include <algorithm>
#include <array>

#include "sim/application.h"
#include "sim/collection.h"
#include "sim/folder.h"
#include "sim/item.h"

namespace qvx::sim {

bool SimItems::Contains(const SimItem& item) const {
  return members_.contains(&item);
}

void SimItems::Place(const std::shared_ptr<SimItem>& item) {
  if (members_.insert(item.get()).second) list_.push_back(item);
}

std::shared_ptr<SimItem> SimItems::FindByEntryId(std::string_view entryId) const {
  for (const auto& i : list_) {
    if (i->EntryId() == entryId) return i;
  }
  return nullptr;
}

void SimItems::Enter(const std::shared_ptr<SimItem>& item) {
  Place(item);
  EventArgs args{item->AsVariant()};
  Raise("ItemAdd", args);
}

void SimItems::Changed(const std::shared_ptr<SimItem>& item) {
  EventArgs args{item->AsVariant()};
  Raise("ItemChange", args);
}

void SimItems::Remove(const SimItem& item) {
  if (members_.erase(&item) == 0) return;
  std::erase_if(list_, [&](const auto& i) { return i.get() == &item; });
  Raise("ItemRemove");
}

std::span<const std::string_view> SimItems::EventNames() const {
  static constexpr std::array<std::string_view, 3> kEvents{"ItemAdd", "ItemChange", "ItemRemove"};
  return kEvents;
}

Variant SimItems::ParentObject() {
  return OrNothing(folder_.lock());
}

Variant SimItems::ItemByKey(const Variant& key) {
  for (const auto& i : list_) {
    if (i->Subject() == key.ToText()) return i->AsVariant();
  }
  throw IndexOutOfBounds();
}

Variant SimItems::Next() {
  if (cursor_ >= list_.size()) return Variant(Object());
  return list_[cursor_++]->AsVariant();
}

const MemberTable& SimItems::Members() const {
  static const MemberTable table = [] {
    MemberTable t = CollectionMembers();
    Define<SimItems>(t)
        .Method("Add", 0, 1,
                [](SimItems& c, Args& a) {
                  auto folder = c.folder_.lock();
                  if (!folder) throw InvalidParameter();
                  if (!HasArg(a, 0)) return folder->NewItem()->AsVariant();
                  if (a[0].IsString()) return folder->NewItem(a[0].ToText())->AsVariant();
                  return folder->NewItem(a[0].ToLong())->AsVariant();
                })
        .Method("GetFirst", 0, 0,
                [](SimItems& c, Args&) {
                  c.cursor_ = 0;
                  return c.Next();
                })
        .Method("GetNext", 0, 0, [](SimItems& c, Args&) { return c.Next(); })
        .Method("GetLast", 0, 0,
                [](SimItems& c, Args&) {
                  c.cursor_ = c.list_.size();
                  return c.list_.empty() ? Variant(Object()) : c.list_.back()->AsVariant();
                })
        .Method("Remove", 1, 1,
                [](SimItems& c, Args& a) {
                  c.At(a[0])->Delete();
                  return Variant();
                })
        .Method("Sort", 1, 2, [](SimItems&, Args&) { return Variant(); });
    return t;
  }();
  return table;
}

}  // namespace qvx::sim
