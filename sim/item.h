// SimItem: what the host's mail, appointment and task items have in common.
//
// Fields are typed (text, date, Long, Boolean, Double) and converted on put
// with the runtime's rules, so a bad value fails with 13 as it does through
// the real object model. A new item (CreateItem, Items.Add) has an empty
// EntryID and is not in its folder until its first Save, which assigns the
// EntryID, stamps LastModificationTime from the host's clock and raises
// ItemAdd on the folder's Items; later saves raise ItemChange. A deleted item
// fails every member with "The item has been moved or deleted."
//
// Test code reads and writes fields with Field/SetField, which skip the
// read-only rule (EntryID, IsRecurring ...) and raise no events.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

#include "core/host_constants.h"
#include "sim/context.h"
#include "sim/sim_object.h"

namespace qvx::sim {

class SimFolder;
class SimUserProperties;

enum class FieldType { Text, Date, Long, Bool, Double };

// The value as a field of this type stores it (Failure 13 if it can't be).
Variant ConvertField(FieldType type, const Variant& value);

class SimItem : public SimObject {
 public:
  SimItem(ContextPtr context, int32_t objectClass, std::string messageClass);

  void SetParent(const std::shared_ptr<SimObject>& parent) { parent_ = parent; }
  std::shared_ptr<SimObject> Parent() const { return parent_.lock(); }
  // The folder the item lives in (for an occurrence, its series' folder).
  std::shared_ptr<SimFolder> Folder() const;

  Variant Field(std::string_view name) const;
  void SetField(std::string_view name, Variant value);
  std::string EntryId() const { return Field("EntryID").ToText(); }
  std::string Subject() const { return Field("Subject").ToText(); }
  std::string MessageClass() const { return Field("MessageClass").ToText(); }

  SimUserProperties& UserProperties();
  std::shared_ptr<SimUserProperties> UserPropertiesPtr();

  // The host's Save, Delete and Display, as the add-in would call them.
  virtual void Save();
  void Delete();
  void Display();
  bool deleted() const { return deleted_; }
  int saveCount() const { return saves_; }
  // Tells the context's itemWritten hook, if any, that the add-in changed the item.
  void NoteWrite() const;
  const ContextPtr& context() const { return context_; }

 protected:
  // The members every item class has; derived classes copy and extend them.
  static MemberTable CommonMembers();
  static void DefineField(MemberTable& table, std::string_view name, FieldType type, bool writable);
  // Called after the add-in puts a field; derived classes keep fields in step.
  virtual void FieldPut(std::string_view, const Variant&) {}
  void CheckUsable() const override;

 private:
  ContextPtr context_;
  std::weak_ptr<SimObject> parent_;
  std::unordered_map<std::string, Variant> fields_;  // by folded name
  std::shared_ptr<SimUserProperties> userProperties_;
  bool deleted_ = false;
  int saves_ = 0;
};

}  // namespace qvx::sim
