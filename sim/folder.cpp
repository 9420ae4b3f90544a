#include "sim/folder.h"

#include "core/text.h"
#include "sim/collection.h"
#include "sim/item_classes.h"
#include "sim/items.h"
#include "sim/views.h"

namespace qvx::sim {
namespace {

// The standard view a folder of this kind starts with.
void AddStandardView(SimViews& views, int32_t defaultItemType) {
  switch (defaultItemType) {
    case host::olAppointmentItem:
      views.Add("Calendar", 2, 0, true);
      break;
    case host::olTaskItem:
      views.Add("Simple List", 0, 0, true);
      break;
    default:
      views.Add("Compact", 0, 0, true);
      break;
  }
}

}  // namespace

int32_t ItemTypeOfFolderKind(int32_t folderKind) {
  switch (folderKind) {
    case 9:
      return host::olAppointmentItem;
    case 10:
      return 2;  // contacts
    case 11:
      return 4;  // journal
    case 12:
      return 5;  // notes
    case 13:
    case 28:
      return host::olTaskItem;
    default:
      return host::olMailItem;
  }
}

SimFolder::SimFolder(ContextPtr context, std::string name, int32_t defaultItemType,
                     std::string storeId)
    : context_(std::move(context)),
      name_(std::move(name)),
      defaultItemType_(defaultItemType),
      entryId_(context_->NewEntryId()),
      storeId_(std::move(storeId)) {}

void SimFolder::Init() {
  auto self = std::static_pointer_cast<SimFolder>(shared_from_this());
  items_ = std::make_shared<SimItems>(context_, self);
  folders_ = std::make_shared<SimFolders>(context_, self);
  views_ = std::make_shared<SimViews>(context_, self);
  AddStandardView(*views_, defaultItemType_);
}

std::shared_ptr<SimFolder> MakeFolder(ContextPtr context, std::string name, int32_t defaultItemType,
                                      std::string storeId) {
  auto folder = std::make_shared<SimFolder>(std::move(context), std::move(name), defaultItemType,
                                            std::move(storeId));
  folder->Init();
  return folder;
}

std::string SimFolder::Path() const {
  if (auto parent = std::dynamic_pointer_cast<SimFolder>(Parent())) {
    return parent->Path() + "\\" + name_;
  }
  return "\\\\" + name_;
}

std::shared_ptr<SimFolder> SimFolder::AddSubfolder(std::string name, int32_t defaultItemType) {
  if (folders_->Find(name)) throw InvalidParameter();
  auto folder = MakeFolder(context_, std::move(name), defaultItemType, storeId_);
  folder->SetParent(shared_from_this());
  folders_->Append(folder);
  return folder;
}

std::shared_ptr<SimItem> SimFolder::Adopt(std::shared_ptr<SimItem> item) {
  ++itemsMade_;
  item->SetParent(shared_from_this());
  return item;
}

std::shared_ptr<SimItem> SimFolder::NewItem() {
  return NewItem(defaultItemType_);
}

std::shared_ptr<SimItem> SimFolder::NewItem(std::string_view messageClass) {
  return Adopt(MakeItem(context_, messageClass));
}

std::shared_ptr<SimItem> SimFolder::NewItem(int32_t itemType) {
  return Adopt(MakeItem(context_, itemType));
}

void SimFolder::AddField(std::string_view name, int32_t type) {
  if (!HasField(name)) fields_.push_back(FolderField{std::string(name), type});
}

bool SimFolder::HasField(std::string_view name) const {
  for (const auto& f : fields_) {
    if (EqualsText(f.name, name)) return true;
  }
  return false;
}

const MemberTable& SimFolder::Members() const {
  static const MemberTable table = [] {
    MemberTable t;
    Define<SimFolder>(t)
        .Prop(
            "Name", [](SimFolder& f) { return Variant(f.name_); },
            [](SimFolder& f, const Variant& v) { f.name_ = v.ToText(); })
        .Get("DefaultItemType", [](SimFolder& f) { return Variant(f.defaultItemType_); })
        .Get("EntryID", [](SimFolder& f) { return Variant(f.entryId_); })
        .Get("StoreID", [](SimFolder& f) { return Variant(f.storeId_); })
        .Get("FolderPath", [](SimFolder& f) { return Variant(f.Path()); })
        .Get("Parent", [](SimFolder& f) { return OrNothing(f.Parent()); })
        .Get("Items", [](SimFolder& f) { return f.items_->AsVariant(); })
        .Get("Folders", [](SimFolder& f) { return f.folders_->AsVariant(); })
        .Get("Views", [](SimFolder& f) { return f.views_->AsVariant(); })
        .Get("CurrentView", [](SimFolder& f) { return OrNothing(f.views_->current()); })
        .Get("Class", [](SimFolder&) { return Variant(int32_t{2}); });
    return t;
  }();
  return table;
}

std::shared_ptr<SimFolder> SimFolders::Find(std::string_view name) const {
  for (const auto& f : list_) {
    if (EqualsText(f->name(), name)) return f;
  }
  return nullptr;
}

Variant SimFolders::ParentObject() {
  return OrNothing(owner_.lock());
}

Variant SimFolders::ItemByKey(const Variant& key) {
  auto folder = Find(key.ToText());
  if (!folder) {
    throw HostFailure(hresult::kNotFound,
                      "The attempted operation failed.  An object could not be found.");
  }
  return folder->AsVariant();
}

const MemberTable& SimFolders::Members() const {
  static const MemberTable table = [] {
    MemberTable t = CollectionMembers();
    Define<SimFolders>(t).Method("Add", 1, 2, [](SimFolders& c, Args& a) {
      auto owner = c.owner_.lock();
      if (!owner) throw InvalidParameter();
      const int32_t type =
          HasArg(a, 1) ? ItemTypeOfFolderKind(LongArg(a, 1)) : owner->defaultItemType();
      return owner->AddSubfolder(TextArg(a, 0), type)->AsVariant();
    });
    return t;
  }();
  return table;
}

}  // namespace qvx::sim
