// The world's folders, items and categories.
#include "sim/outlook.h"

#include "sim/categories.h"
#include "sim/explorer.h"
#include "sim/folder.h"
#include "sim/item_classes.h"
#include "sim/items.h"
#include "sim/name_space.h"
#include "sim/user_properties.h"

namespace qvx::sim {

// ---- folders ----

std::shared_ptr<SimFolder> Outlook::DefaultFolder(int32_t kind) {
  auto folder = app_->session().DefaultFolder(kind);
  if (!folder) throw InvalidParameter();
  return folder;
}

std::shared_ptr<SimFolder> Outlook::Calendar() {
  return DefaultFolder(host::olFolderCalendar);
}
std::shared_ptr<SimFolder> Outlook::Tasks() {
  return DefaultFolder(host::olFolderTasks);
}
std::shared_ptr<SimFolder> Outlook::Inbox() {
  return DefaultFolder(host::olFolderInbox);
}
std::shared_ptr<SimFolder> Outlook::Root() {
  return app_->session().root();
}

std::shared_ptr<SimFolder> Outlook::AddFolder(const std::shared_ptr<SimFolder>& parent,
                                              std::string name, int32_t defaultItemType) {
  return parent->AddSubfolder(std::move(name), defaultItemType);
}

std::shared_ptr<SimFolder> Outlook::FolderOr(std::shared_ptr<SimFolder> folder, int32_t kind) {
  return folder ? folder : DefaultFolder(kind);
}

// ---- items ----

namespace {

// Enters a new item into its folder as a saved one, without events.
template <class T>
std::shared_ptr<T> Place(const std::shared_ptr<SimFolder>& folder, std::shared_ptr<T> item,
                         SimContext& context) {
  item->SetParent(folder);
  item->SetField("EntryID", context.NewEntryId());
  item->SetField("Saved", true);
  folder->items().Place(item);
  return item;
}

}  // namespace

std::shared_ptr<SimAppointment> Outlook::AddAppointment(std::string subject, DateValue start,
                                                        DateValue end,
                                                        std::shared_ptr<SimFolder> folder) {
  auto item = std::make_shared<SimAppointment>(context_);
  item->SetField("Subject", std::move(subject));
  item->SetTimes(start, end);
  return Place(FolderOr(std::move(folder), host::olFolderCalendar), item, *context_);
}

std::shared_ptr<SimAppointment> Outlook::AddRecurringAppointment(
    std::string subject, DateValue start, DateValue end, std::shared_ptr<SimFolder> folder) {
  auto series = AddAppointment(std::move(subject), start, end, std::move(folder));
  series->MakeSeries();
  return series;
}

std::shared_ptr<SimAppointment> Outlook::Occurrence(SimAppointment& series, DateValue start) {
  return series.Occurrence(start);
}

std::shared_ptr<SimTask> Outlook::AddTask(std::string subject, DateValue start, DateValue due,
                                          std::shared_ptr<SimFolder> folder) {
  auto item = std::make_shared<SimTask>(context_);
  item->SetField("Subject", std::move(subject));
  item->SetField("StartDate", start);
  item->SetField("DueDate", due);
  return Place(FolderOr(std::move(folder), host::olFolderTasks), item, *context_);
}

std::shared_ptr<SimMail> Outlook::AddMail(std::string subject, std::shared_ptr<SimFolder> folder) {
  auto item = std::make_shared<SimMail>(context_);
  item->SetField("Subject", std::move(subject));
  return Place(FolderOr(std::move(folder), host::olFolderInbox), item, *context_);
}

void Outlook::ChangeItem(SimItem& item, std::string_view field, const Variant& value) {
  item.SetField(field, value);
  item.SetField("LastModificationTime", context_->Now());
  if (auto folder = item.Folder()) {
    folder->items().Changed(std::static_pointer_cast<SimItem>(item.shared_from_this()));
  }
}

void Outlook::ChangeUserProperty(SimItem& item, std::string_view name, int32_t type,
                                 const Variant& value) {
  item.UserProperties().Set(name, type, value);
  item.SetField("LastModificationTime", context_->Now());
  if (auto folder = item.Folder()) {
    folder->items().Changed(std::static_pointer_cast<SimItem>(item.shared_from_this()));
  }
}

std::shared_ptr<SimItem> Outlook::NewItem(int32_t itemType) {
  return MakeItem(context_, itemType);
}

std::shared_ptr<SimItem> Outlook::FindItem(std::string_view entryId) {
  return app_->session().FindItem(entryId);
}

// ---- categories ----

std::shared_ptr<SimCategory> Outlook::AddCategory(std::string name, int32_t color) {
  return app_->session().categories().Add(name, color);
}

std::shared_ptr<SimCategory> Outlook::FindCategory(std::string_view name) {
  return app_->session().categories().Find(name);
}

}  // namespace qvx::sim
