#include "sim/item.h"

#include "core/text.h"
#include "sim/application.h"
#include "sim/collection.h"
#include "sim/folder.h"
#include "sim/items.h"
#include "sim/user_properties.h"

namespace qvx::sim {

Variant ConvertField(FieldType type, const Variant& value) {
  switch (type) {
    case FieldType::Text:
      return Variant(value.ToText());
    case FieldType::Date:
      return Variant(value.ToDate());
    case FieldType::Long:
      return Variant(value.ToLong());
    case FieldType::Bool:
      return Variant(value.ToBoolean());
    case FieldType::Double:
      return Variant(value.ToDouble());
  }
  return value;
}

SimItem::SimItem(ContextPtr context, int32_t objectClass, std::string messageClass)
    : context_(std::move(context)) {
  const DateValue now = context_->Now();
  SetField("Subject", "");
  SetField("Body", "");
  SetField("Categories", "");
  SetField("MessageClass", std::move(messageClass));
  SetField("Sensitivity", int32_t{0});
  SetField("Importance", int32_t{1});
  SetField("EntryID", "");
  SetField("CreationTime", now);
  SetField("LastModificationTime", now);
  SetField("Class", objectClass);
  SetField("Saved", false);
}

std::shared_ptr<SimFolder> SimItem::Folder() const {
  auto parent = Parent();
  if (auto folder = std::dynamic_pointer_cast<SimFolder>(parent)) return folder;
  if (auto series = std::dynamic_pointer_cast<SimItem>(parent)) return series->Folder();
  return nullptr;
}

Variant SimItem::Field(std::string_view name) const {
  auto it = fields_.find(FoldCase(name));
  return it == fields_.end() ? Variant() : it->second;
}

void SimItem::SetField(std::string_view name, Variant value) {
  fields_[FoldCase(name)] = std::move(value);
}

SimUserProperties& SimItem::UserProperties() {
  return *UserPropertiesPtr();
}

std::shared_ptr<SimUserProperties> SimItem::UserPropertiesPtr() {
  if (!userProperties_) {
    userProperties_ = std::make_shared<SimUserProperties>(
        context_, std::static_pointer_cast<SimItem>(shared_from_this()));
  }
  return userProperties_;
}

void SimItem::Save() {
  ++saves_;
  SetField("LastModificationTime", context_->Now());
  SetField("Saved", true);
  if (EntryId().empty()) SetField("EntryID", context_->NewEntryId());
  auto folder = Folder();
  if (!folder) return;
  auto self = std::static_pointer_cast<SimItem>(shared_from_this());
  const bool occurrence = std::dynamic_pointer_cast<SimItem>(Parent()) != nullptr;
  if (occurrence || folder->items().Contains(*this)) {
    folder->items().Changed(self);
  } else {
    folder->items().Enter(self);
  }
}

void SimItem::Delete() {
  if (auto folder = Folder()) folder->items().Remove(*this);
  deleted_ = true;
}

void SimItem::Display() {
  if (auto app = context_->app.lock()) {
    app->DisplayItem(std::static_pointer_cast<SimItem>(shared_from_this()));
  }
}

void SimItem::NoteWrite() const {
  if (context_->itemWritten) context_->itemWritten(*this);
}

void SimItem::CheckUsable() const {
  if (deleted_) throw HostFailure(hresult::kObjectDeleted, "The item has been moved or deleted.");
}

void SimItem::DefineField(MemberTable& table, std::string_view name, FieldType type,
                          bool writable) {
  const std::string key = FoldCase(name);
  Member& m = table.Entry(name);
  m.get = [key](SimObject& o, Args&) { return static_cast<SimItem&>(o).fields_[key]; };
  m.minArgs = m.maxArgs = 0;
  if (!writable) return;
  m.put = [key, type](SimObject& o, Args&, const Variant& v) {
    auto& item = static_cast<SimItem&>(o);
    item.NoteWrite();
    Variant converted = ConvertField(type, v);
    item.fields_[key] = converted;
    item.fields_["saved"] = Variant(false);
    item.FieldPut(key, converted);
  };
}

MemberTable SimItem::CommonMembers() {
  MemberTable t;
  DefineField(t, "Subject", FieldType::Text, true);
  DefineField(t, "Body", FieldType::Text, true);
  DefineField(t, "Categories", FieldType::Text, true);
  DefineField(t, "MessageClass", FieldType::Text, true);
  DefineField(t, "Sensitivity", FieldType::Long, true);
  DefineField(t, "Importance", FieldType::Long, true);
  DefineField(t, "EntryID", FieldType::Text, false);
  DefineField(t, "CreationTime", FieldType::Date, false);
  DefineField(t, "LastModificationTime", FieldType::Date, false);
  DefineField(t, "Class", FieldType::Long, false);
  DefineField(t, "Saved", FieldType::Bool, false);
  Define<SimItem>(t)
      .Get("Parent", [](SimItem& i) { return OrNothing(i.Parent()); })
      .Get("UserProperties", [](SimItem& i) { return i.UserPropertiesPtr()->AsVariant(); })
      .Get("Application", [](SimItem& i) { return OrNothing(i.context()->app.lock()); })
      .Method("Save", 0, 0,
              [](SimItem& i, Args&) {
                i.NoteWrite();
                i.Save();
                return Variant();
              })
      .Method("Delete", 0, 0,
              [](SimItem& i, Args&) {
                i.NoteWrite();
                i.Delete();
                return Variant();
              })
      .Method("Display", 0, 1,
              [](SimItem& i, Args&) {
                i.Display();
                return Variant();
              })
      .Method("Close", 1, 1, [](SimItem& i, Args& a) {
        if (LongArg(a, 0) == 0) {  // olSave; olDiscard and olPromptForSave keep it
          i.NoteWrite();
          i.Save();
        }
        if (auto app = i.context()->app.lock()) app->CloseInspectorsOf(i);
        return Variant();
      });
  return t;
}

}  // namespace qvx::sim
