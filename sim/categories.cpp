#include "sim/categories.h"

#include <cstdio>

#include "core/text.h"
#include "sim/application.h"
#include "sim/name_space.h"

namespace qvx::sim {

const MemberTable& SimCategory::Members() const {
  static const MemberTable table = [] {
    MemberTable t;
    Define<SimCategory>(t)
        .Prop(
            "Name", [](SimCategory& c) { return Variant(c.name_); },
            [](SimCategory& c, const Variant& v) { c.Rename(v.ToText()); })
        .Prop(
            "Color", [](SimCategory& c) { return Variant(c.color_); },
            [](SimCategory& c, const Variant& v) { c.color_ = v.ToLong(); })
        .Prop(
            "ShortcutKey", [](SimCategory& c) { return Variant(c.shortcutKey_); },
            [](SimCategory& c, const Variant& v) { c.shortcutKey_ = v.ToLong(); })
        .Get("CategoryID", [](SimCategory& c) { return Variant(c.id_); });
    return t;
  }();
  return table;
}

void SimCategory::Rename(std::string name) {
  if (owner_ != nullptr) owner_->Unindex(name_, *this);
  name_ = std::move(name);
  if (owner_ != nullptr) owner_->Index(name_, *this);
}

SimCategories::~SimCategories() {
  for (const auto& c : list_) c->owner_ = nullptr;  // a category held elsewhere outlives the list
}

void SimCategories::Index(std::string_view key, SimCategory& category) {
  byKey_.emplace(FoldCase(key), std::static_pointer_cast<SimCategory>(category.shared_from_this()));
}

void SimCategories::Unindex(std::string_view key, const SimCategory& category) {
  auto [at, end] = byKey_.equal_range(FoldCase(key));
  while (at != end && at->second.get() != &category) ++at;
  if (at != end) byKey_.erase(at);
}

std::shared_ptr<SimCategory> SimCategories::Find(std::string_view nameOrId) const {
  // Renamed categories may share a name: the first added is the first listed.
  std::shared_ptr<SimCategory> first;
  auto [at, end] = byKey_.equal_range(FoldCase(nameOrId));
  for (; at != end; ++at) {
    if (!first || at->second->order_ < first->order_) first = at->second;
  }
  return first;
}

std::shared_ptr<SimCategory> SimCategories::Add(std::string_view name, int32_t color) {
  if (Trim(name).empty() || Find(name)) throw InvalidParameter();
  char id[40];
  std::snprintf(id, sizeof id, "{%08X-0000-0000-0000-000000000000}", nextId_);
  auto category = std::make_shared<SimCategory>(std::string(name), color, id);
  category->owner_ = this;
  category->order_ = nextId_++;
  list_.push_back(category);
  Index(category->name(), *category);
  Index(category->id(), *category);
  return category;
}

void SimCategories::Remove(const std::shared_ptr<SimCategory>& category) {
  Unindex(category->name(), *category);
  Unindex(category->id(), *category);
  category->owner_ = nullptr;
  std::erase(list_, category);
}

Variant SimCategories::ParentObject() {
  auto app = collectionContext()->app.lock();
  return app ? app->session().AsVariant() : Variant(Object());
}

const MemberTable& SimCategories::Members() const {
  static const MemberTable table = [] {
    MemberTable t = CollectionMembers();
    Define<SimCategories>(t)
        .Method("Add", 1, 3,
                [](SimCategories& c, Args& a) {
                  return c.Add(TextArg(a, 0), LongArgOr(a, 1, 0))->AsVariant();
                })
        .Method("Remove", 1, 1, [](SimCategories& c, Args& a) {
          const auto category = IsPositional(a[0]) ? c.At(a[0]) : c.Find(TextArg(a, 0));
          if (!category) throw IndexOutOfBounds();
          c.Remove(category);
          return Variant();
        });
    return t;
  }();
  return table;
}

}  // namespace qvx::sim
