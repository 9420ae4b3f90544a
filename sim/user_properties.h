// UserProperties and UserProperty of a simulated item.
//
// A property keeps its value in the type it was added with, converting what
// the add-in puts as the host does: olText 1 and olKeywords 11 as text,
// olNumber 3 as Double, olDateTime 5 as a date (first value 4501-01-01),
// olYesNo 6 as Boolean, olInteger 20, olPercent 12 and olDuration 7 as Long,
// olCurrency 14 as Currency. Find and Item by name are case-blind and give
// Nothing for a name that isn't there; Item by position fails out of range.
// Add with addToFolderFields True also enters the field in the item's folder.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/host_constants.h"
#include "sim/collection.h"

namespace qvx::sim {

class SimItem;
class SimUserProperties;

// The value as a property of `type` stores it; Failure 13 if it can't be.
Variant ConvertToPropertyType(int32_t type, const Variant& value);
// The value of a new property of `type`.
Variant DefaultPropertyValue(int32_t type);

class SimUserProperty : public SimObject {
 public:
  SimUserProperty(std::string name, int32_t type);
  std::string TypeName() const override { return "UserProperty"; }

  const std::string& name() const { return name_; }
  int32_t type() const { return type_; }
  const Variant& value() const { return value_; }
  // Converts as a put through the host does.
  void SetValue(const Variant& value) { value_ = ConvertToPropertyType(type_, value); }

 protected:
  const MemberTable& Members() const override;

 private:
  friend class SimUserProperties;
  std::string name_;
  int32_t type_;
  Variant value_;
  std::weak_ptr<SimUserProperties> owner_;
};

class SimUserProperties : public SimCollection<SimUserProperty> {
 public:
  SimUserProperties(ContextPtr context, std::weak_ptr<SimItem> item)
      : SimCollection(std::move(context)), item_(std::move(item)) {}
  std::string TypeName() const override { return "UserProperties"; }

  std::shared_ptr<SimUserProperty> Find(std::string_view name) const;
  // Adds a property, or returns the one of that name if its type matches.
  std::shared_ptr<SimUserProperty> Add(std::string_view name, int32_t type,
                                       bool addToFolderFields = true);
  void Remove(const SimUserProperty& property);
  // Test side: the property's value, adding the property if need be.
  void Set(std::string_view name, int32_t type, const Variant& value);
  // The item's NoteWrite, for a change the add-in makes through the object model.
  void NoteWrite() const;

 protected:
  const MemberTable& Members() const override;
  Variant ParentObject() override;
  // Nothing for a name that isn't there.
  Variant ItemByKey(const Variant& key) override { return OrNothing(Find(key.ToText())); }

 private:
  std::weak_ptr<SimItem> item_;
};

}  // namespace qvx::sim
