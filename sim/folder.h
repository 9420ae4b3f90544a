// SimFolder (the host's MAPIFolder) and SimFolders, its sub-folder list.
//
// A folder knows its default item type, its EntryID and its store's StoreID,
// its Items, Views and sub-folders, and the folder fields that
// UserProperties.Add(..., True) entered for views to use. The store's root
// folder is named after the mailbox ("Mailbox - Jane Doe"); its Parent is the
// NameSpace, every other folder's Parent its containing folder.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "sim/collection.h"
#include "sim/context.h"

namespace qvx::sim {

class SimItem;
class SimItems;
class SimFolders;
class SimViews;

struct FolderField {
  std::string name;
  int32_t type;
};

class SimFolder : public SimObject {
 public:
  SimFolder(ContextPtr context, std::string name, int32_t defaultItemType, std::string storeId);
  std::string TypeName() const override { return "MAPIFolder"; }
  // Builds the folder's own collections; call once right after make_shared.
  void Init();

  const std::string& name() const { return name_; }
  void SetName(std::string name) { name_ = std::move(name); }
  int32_t defaultItemType() const { return defaultItemType_; }
  const std::string& entryId() const { return entryId_; }
  const std::string& storeId() const { return storeId_; }
  std::string Path() const;
  void SetParent(const std::shared_ptr<SimObject>& parent) { parent_ = parent; }
  std::shared_ptr<SimObject> Parent() const { return parent_.lock(); }

  SimItems& items() { return *items_; }
  SimFolders& folders() { return *folders_; }
  SimViews& views() { return *views_; }
  std::shared_ptr<SimFolder> AddSubfolder(std::string name, int32_t defaultItemType);

  // A new item of the folder's kind (or of `messageClass`), not yet saved.
  std::shared_ptr<SimItem> NewItem();
  std::shared_ptr<SimItem> NewItem(std::string_view messageClass);
  std::shared_ptr<SimItem> NewItem(int32_t itemType);
  // How many items were made in the folder (Items.Add), kept or not.
  int itemsMade() const { return itemsMade_; }

  // The folder's field list; adding a name that is there already does nothing.
  void AddField(std::string_view name, int32_t type);
  const std::vector<FolderField>& fields() const { return fields_; }
  bool HasField(std::string_view name) const;

  const ContextPtr& context() const { return context_; }

 protected:
  const MemberTable& Members() const override;

 private:
  std::shared_ptr<SimItem> Adopt(std::shared_ptr<SimItem> item);

  ContextPtr context_;
  std::string name_;
  int32_t defaultItemType_;
  std::string entryId_;
  std::string storeId_;
  std::weak_ptr<SimObject> parent_;
  std::shared_ptr<SimItems> items_;
  std::shared_ptr<SimFolders> folders_;
  std::shared_ptr<SimViews> views_;
  std::vector<FolderField> fields_;
  int itemsMade_ = 0;
};

class SimFolders : public SimCollection<SimFolder> {
 public:
  SimFolders(ContextPtr context, std::weak_ptr<SimFolder> owner)
      : SimCollection(std::move(context)), owner_(std::move(owner)) {}
  std::string TypeName() const override { return "Folders"; }
  void Append(std::shared_ptr<SimFolder> folder) { list_.push_back(std::move(folder)); }
  std::shared_ptr<SimFolder> Find(std::string_view name) const;

 protected:
  const MemberTable& Members() const override;
  Variant ParentObject() override;
  Variant ItemByKey(const Variant& key) override;

 private:
  std::weak_ptr<SimFolder> owner_;
};

// The default item type of a folder of a host folder kind (OlDefaultFolders:
// 9 calendar gives 1, 13 tasks gives 3, mail folders 0).
int32_t ItemTypeOfFolderKind(int32_t folderKind);

// A folder made and initialised in one step.
std::shared_ptr<SimFolder> MakeFolder(ContextPtr context, std::string name, int32_t defaultItemType,
                                      std::string storeId);

}  // namespace qvx::sim
