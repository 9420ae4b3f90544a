// The master category list of the simulated session (NameSpace.Categories).
//
// Item takes a position, a name (case-blind) or a CategoryID and gives
// Nothing for an unknown name, as the host does; Add fails for a name that is
// there already; Parent is the session. Color is the host's OlCategoryColor number.
// Names and ids are found through an index, kept right when a category is
// renamed through Name or removed, so that a lookup does not grow with the list.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "sim/collection.h"

namespace qvx::sim {

class SimCategories;

class SimCategory : public SimObject {
 public:
  SimCategory(std::string name, int32_t color, std::string id)
      : name_(std::move(name)), color_(color), id_(std::move(id)) {}
  std::string TypeName() const override { return "Category"; }
  const std::string& name() const { return name_; }
  int32_t color() const { return color_; }
  void SetColor(int32_t color) { color_ = color; }
  const std::string& id() const { return id_; }

 protected:
  const MemberTable& Members() const override;

 private:
  friend class SimCategories;
  void Rename(std::string name);

  std::string name_;
  int32_t color_;
  std::string id_;
  int32_t shortcutKey_ = 0;
  // The list this category is in (none once removed), and its place in the
  // order of adding, which is the list's order.
  SimCategories* owner_ = nullptr;
  int order_ = 0;
};

class SimCategories : public SimCollection<SimCategory> {
 public:
  explicit SimCategories(ContextPtr context) : SimCollection(std::move(context)) {}
  ~SimCategories() override;
  std::string TypeName() const override { return "Categories"; }
  // The first category in the list whose name or id is `nameOrId`, case-blind.
  std::shared_ptr<SimCategory> Find(std::string_view nameOrId) const;
  std::shared_ptr<SimCategory> Add(std::string_view name, int32_t color);

 protected:
  const MemberTable& Members() const override;
  // The session.
  Variant ParentObject() override;
  // Nothing for an unknown name.
  Variant ItemByKey(const Variant& key) override { return OrNothing(Find(key.ToText())); }

 private:
  friend class SimCategory;
  void Index(std::string_view key, SimCategory& category);
  void Unindex(std::string_view key, const SimCategory& category);
  void Remove(const std::shared_ptr<SimCategory>& category);

  int nextId_ = 1;
  // Folded names and ids to the categories that bear them.
  std::unordered_multimap<std::string, std::shared_ptr<SimCategory>> byKey_;
};

}  // namespace qvx::sim
