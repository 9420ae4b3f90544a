// SimNameSpace: the host's MAPI session: one mailbox store whose root folder
// is named after the mailbox, with the default folders Deleted Items (3),
// Outbox (4), Sent Items (5), Inbox (6), Calendar (9), Tasks (13) and
// Drafts (16). GetDefaultFolder of any other number fails. Also the master
// category list, the current user, and lookup of items by EntryID.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "core/host_constants.h"
#include "sim/context.h"
#include "sim/sim_object.h"

namespace qvx::sim {

class FakeObject;
class SimCategories;
class SimFolder;
class SimFolders;
class SimItem;

class SimNameSpace : public SimObject {
 public:
  SimNameSpace(ContextPtr context, std::string mailboxName, std::string userName);
  std::string TypeName() const override { return "NameSpace"; }
  // Builds the store; call once right after make_shared.
  void Init();

  std::shared_ptr<SimFolder> DefaultFolder(int32_t kind) const;
  std::shared_ptr<SimFolder> root() const { return root_; }
  SimCategories& categories() { return *categories_; }
  // The saved item with this EntryID in any folder of the store, or null.
  std::shared_ptr<SimItem> FindItem(std::string_view entryId) const;
  std::shared_ptr<SimFolder> FindFolder(std::string_view entryId) const;
  void SetUserName(std::string name);

 protected:
  const MemberTable& Members() const override;

 private:
  ContextPtr context_;
  std::string mailboxName_;
  std::shared_ptr<SimFolder> root_;
  std::shared_ptr<SimFolders> stores_;
  std::map<int32_t, std::shared_ptr<SimFolder>> defaults_;
  std::shared_ptr<SimCategories> categories_;
  std::shared_ptr<FakeObject> currentUser_;
};

}  // namespace qvx::sim
