#include "sim/name_space.h"

#include <cstdio>
#include <functional>

#include "sim/application.h"
#include "sim/categories.h"
#include "sim/collection.h"
#include "sim/fake_object.h"
#include "sim/folder.h"
#include "sim/item.h"
#include "sim/items.h"

namespace qvx::sim {
namespace {

Failure ObjectNotFound() {
  return HostFailure(hresult::kNotFound,
                     "The attempted operation failed.  An object could not be found.");
}

// Calls `visit` on the folder and every folder below it until it returns true.
bool Walk(const std::shared_ptr<SimFolder>& folder,
          const std::function<bool(const std::shared_ptr<SimFolder>&)>& visit) {
  if (visit(folder)) return true;
  for (const auto& child : folder->folders().list()) {
    if (Walk(child, visit)) return true;
  }
  return false;
}

}  // namespace

SimNameSpace::SimNameSpace(ContextPtr context, std::string mailboxName, std::string userName)
    : context_(std::move(context)),
      mailboxName_(std::move(mailboxName)),
      categories_(std::make_shared<SimCategories>(context_)),
      currentUser_(std::make_shared<FakeObject>("Recipient")) {
  currentUser_->ReadOnly("Name", Variant(userName)).ReadOnly("Address", Variant(userName));
}

void SimNameSpace::Init() {
  char storeId[49];
  std::snprintf(storeId, sizeof storeId, "0000000038A1BB1005E5101AA1BB08002B2A56C2%08llX",
                static_cast<unsigned long long>(context_->nextStoreId++));
  root_ = MakeFolder(context_, mailboxName_, 0, storeId);
  root_->SetParent(shared_from_this());
  stores_ = std::make_shared<SimFolders>(context_, std::weak_ptr<SimFolder>());
  stores_->Append(root_);
  const struct {
    int32_t kind;
    const char* name;
  } defaults[] = {{host::olFolderDeletedItems, "Deleted Items"},
                  {host::olFolderOutbox, "Outbox"},
                  {host::olFolderSentMail, "Sent Items"},
                  {host::olFolderInbox, "Inbox"},
                  {host::olFolderCalendar, "Calendar"},
                  {host::olFolderTasks, "Tasks"},
                  {host::olFolderDrafts, "Drafts"}};
  for (const auto& d : defaults) {
    defaults_[d.kind] = root_->AddSubfolder(d.name, ItemTypeOfFolderKind(d.kind));
  }
}

std::shared_ptr<SimFolder> SimNameSpace::DefaultFolder(int32_t kind) const {
  auto it = defaults_.find(kind);
  return it == defaults_.end() ? nullptr : it->second;
}

std::shared_ptr<SimItem> SimNameSpace::FindItem(std::string_view entryId) const {
  std::shared_ptr<SimItem> found;
  if (entryId.empty()) return found;
  Walk(root_, [&](const std::shared_ptr<SimFolder>& f) {
    found = f->items().FindByEntryId(entryId);
    return found != nullptr;
  });
  return found;
}

std::shared_ptr<SimFolder> SimNameSpace::FindFolder(std::string_view entryId) const {
  std::shared_ptr<SimFolder> found;
  Walk(root_, [&](const std::shared_ptr<SimFolder>& f) {
    if (f->entryId() == entryId) found = f;
    return found != nullptr;
  });
  return found;
}

void SimNameSpace::SetUserName(std::string name) {
  currentUser_->SetValue("Name", Variant(name));
  currentUser_->SetValue("Address", Variant(std::move(name)));
}

const MemberTable& SimNameSpace::Members() const {
  static const MemberTable table = [] {
    MemberTable t;
    Define<SimNameSpace>(t)
        .Method("GetDefaultFolder", 1, 1,
                [](SimNameSpace& n, Args& a) {
                  auto folder = n.DefaultFolder(LongArg(a, 0));
                  if (!folder) throw InvalidParameter();
                  return folder->AsVariant();
                })
        .Method("GetItemFromID", 1, 2,
                [](SimNameSpace& n, Args& a) {
                  auto item = n.FindItem(TextArg(a, 0));
                  if (!item) throw ObjectNotFound();
                  return item->AsVariant();
                })
        .Method("GetFolderFromID", 1, 2,
                [](SimNameSpace& n, Args& a) {
                  auto folder = n.FindFolder(TextArg(a, 0));
                  if (!folder) throw ObjectNotFound();
                  return folder->AsVariant();
                })
        .Method("Logon", 0, 4, [](SimNameSpace&, Args&) { return Variant(); })
        .Method("Logoff", 0, 0, [](SimNameSpace&, Args&) { return Variant(); })
        .Get("Categories", [](SimNameSpace& n) { return n.categories_->AsVariant(); })
        .Get("CurrentUser", [](SimNameSpace& n) { return n.currentUser_->AsVariant(); })
        .Get("Folders", [](SimNameSpace& n) { return n.stores_->AsVariant(); })
        .Get("Type", [](SimNameSpace&) { return Variant("MAPI"); })
        .Get("Application", [](SimNameSpace& n) { return OrNothing(n.context_->app.lock()); })
        .Get("Parent", [](SimNameSpace& n) { return OrNothing(n.context_->app.lock()); });
    return t;
  }();
  return table;
}

}  // namespace qvx::sim
