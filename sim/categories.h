// The master category list of the simulated session (NameSpace.Categories).
//
// Item takes a position, a name (case-blind) or a CategoryID and gives
// Nothing for an unknown name, as the host does; Add fails for a name that is
// there already; Parent is the session. Color is the host's OlCategoryColor number.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "sim/collection.h"

namespace qvx::sim {

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
  std::string name_;
  int32_t color_;
  std::string id_;
  int32_t shortcutKey_ = 0;
};

class SimCategories : public SimCollection<SimCategory> {
 public:
  explicit SimCategories(ContextPtr context) : SimCollection(std::move(context)) {}
  std::string TypeName() const override { return "Categories"; }
  std::shared_ptr<SimCategory> Find(std::string_view nameOrId) const;
  std::shared_ptr<SimCategory> Add(std::string_view name, int32_t color);

 protected:
  const MemberTable& Members() const override;
  // The session.
  Variant ParentObject() override;
  // Nothing for an unknown name.
  Variant ItemByKey(const Variant& key) override { return OrNothing(Find(key.ToText())); }

 private:
  int nextId_ = 1;
};

}  // namespace qvx::sim
