#include "sim/user_properties.h"

#include <algorithm>

#include "core/dates.h"
#include "core/text.h"
#include "sim/application.h"
#include "sim/collection.h"
#include "sim/folder.h"
#include "sim/item.h"

namespace qvx::sim {

Variant ConvertToPropertyType(int32_t type, const Variant& value) {
  switch (type) {
    case host::olText:
    case host::olKeywords:
      return Variant(value.ToText());
    case host::olNumber:
      return Variant(value.ToDouble());
    case host::olDateTime:
      return Variant(value.ToDate());
    case host::olYesNo:
      return Variant(value.ToBoolean());
    case host::olInteger:
    case host::olPercent:
    case host::olDuration:
      return Variant(value.ToLong());
    case host::olCurrency:
      return Variant(value.ToCurrency());
    default:
      return value;
  }
}

Variant DefaultPropertyValue(int32_t type) {
  switch (type) {
    case host::olText:
    case host::olKeywords:
      return Variant("");
    case host::olDateTime:
      return Variant(kNoneDate);
    case host::olYesNo:
      return Variant(false);
    case host::olCurrency:
      return Variant(Currency{});
    case host::olNumber:
      return Variant(0.0);
    case host::olInteger:
    case host::olPercent:
    case host::olDuration:
      return Variant(int32_t{0});
    default:
      return Variant();
  }
}

SimUserProperty::SimUserProperty(std::string name, int32_t type)
    : name_(std::move(name)), type_(type), value_(DefaultPropertyValue(type)) {}

const MemberTable& SimUserProperty::Members() const {
  static const MemberTable table = [] {
    MemberTable t;
    Define<SimUserProperty>(t)
        .Get("Name", [](SimUserProperty& p) { return Variant(p.name_); })
        .Get("Type", [](SimUserProperty& p) { return Variant(p.type_); })
        .Prop(
            "Value", [](SimUserProperty& p) { return p.value_; },
            [](SimUserProperty& p, const Variant& v) {
              if (auto owner = p.owner_.lock()) owner->NoteWrite();
              p.SetValue(v);
            })
        .Get("Parent", [](SimUserProperty& p) { return OrNothing(p.owner_.lock()); })
        .Method("Delete", 0, 0, [](SimUserProperty& p, Args&) {
          if (auto owner = p.owner_.lock()) {
            owner->NoteWrite();
            owner->Remove(p);
          }
          return Variant();
        });
    return t;
  }();
  return table;
}

std::shared_ptr<SimUserProperty> SimUserProperties::Find(std::string_view name) const {
  for (const auto& p : list_) {
    if (EqualsText(p->name(), name)) return p;
  }
  return nullptr;
}

std::shared_ptr<SimUserProperty> SimUserProperties::Add(std::string_view name, int32_t type,
                                                        bool addToFolderFields) {
  if (Trim(name).empty()) throw InvalidParameter();
  auto property = Find(name);
  if (property && property->type() != type) {
    throw HostFailure(hresult::kFail,
                      "A field with this name but a different data type already exists.");
  }
  if (!property) {
    property = std::make_shared<SimUserProperty>(std::string(name), type);
    property->owner_ = std::static_pointer_cast<SimUserProperties>(shared_from_this());
    list_.push_back(property);
  }
  auto item = item_.lock();
  if (addToFolderFields && item) {
    if (auto folder = item->Folder()) folder->AddField(name, type);
  }
  if (item) item->SetField("Saved", false);
  return property;
}

void SimUserProperties::Remove(const SimUserProperty& property) {
  std::erase_if(list_, [&](const auto& p) { return p.get() == &property; });
}

void SimUserProperties::NoteWrite() const {
  if (auto item = item_.lock()) item->NoteWrite();
}

void SimUserProperties::Set(std::string_view name, int32_t type, const Variant& value) {
  auto property = Find(name);
  if (!property) property = Add(name, type, false);
  property->SetValue(value);
}

Variant SimUserProperties::ParentObject() {
  return OrNothing(item_.lock());
}

const MemberTable& SimUserProperties::Members() const {
  static const MemberTable table = [] {
    MemberTable t = CollectionMembers();
    Define<SimUserProperties>(t)
        .Method("Find", 1, 2,
                [](SimUserProperties& c, Args& a) { return OrNothing(c.Find(TextArg(a, 0))); })
        .Method("Add", 2, 4,
                [](SimUserProperties& c, Args& a) {
                  const bool toFolder = a.size() < 3 || a[2].IsEmpty() || BoolArg(a, 2);
                  c.NoteWrite();
                  return c.Add(TextArg(a, 0), LongArg(a, 1), toFolder)->AsVariant();
                })
        .Method("Remove", 1, 1, [](SimUserProperties& c, Args& a) {
          c.NoteWrite();
          c.list_.erase(c.list_.begin() + static_cast<long>(IndexArg(a[0], c.list_.size())));
          return Variant();
        });
    return t;
  }();
  return table;
}

}  // namespace qvx::sim
