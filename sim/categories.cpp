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
            [](SimCategory& c, const Variant& v) { c.name_ = v.ToText(); })
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

std::shared_ptr<SimCategory> SimCategories::Find(std::string_view nameOrId) const {
  for (const auto& c : list_) {
    if (EqualsText(c->name(), nameOrId) || EqualsText(c->id(), nameOrId)) return c;
  }
  return nullptr;
}

std::shared_ptr<SimCategory> SimCategories::Add(std::string_view name, int32_t color) {
  if (Trim(name).empty() || Find(name)) throw InvalidParameter();
  char id[40];
  std::snprintf(id, sizeof id, "{%08X-0000-0000-0000-000000000000}", nextId_++);
  auto category = std::make_shared<SimCategory>(std::string(name), color, id);
  list_.push_back(category);
  return category;
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
          std::erase(c.list_, category);
          return Variant();
        });
    return t;
  }();
  return table;
}

}  // namespace qvx::sim
