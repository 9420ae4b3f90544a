#include "sim/outlook.h"

#include "sim/categories.h"
#include "sim/explorer.h"
#include "sim/explorers.h"
#include "sim/folder.h"
#include "sim/inspector.h"
#include "sim/item_classes.h"
#include "sim/items.h"
#include "sim/name_space.h"
#include "sim/path.h"
#include "sim/user_properties.h"

namespace qvx::sim {

Outlook::Outlook() : Outlook(Options{}) {}

Outlook::Outlook(Options options) : context_(std::make_shared<SimContext>()), now_(options.now) {
  context_->clock = [this] { return now_; };
  app_ = std::make_shared<SimApplication>(context_, options.version);
  app_->Init(options.mailbox, options.userName);
  if (options.withExplorer) {
    auto explorer = std::make_shared<SimExplorer>(context_, DefaultFolder(options.startFolder));
    app_->explorers().AddSilently(explorer);
    explorer->Activate();
  }
}

Outlook::~Outlook() {
  // Queued work and hooks may hold objects of this world; let them go with it.
  context_->pending.Clear();
  context_->createObject = nullptr;
  context_->commandBars = nullptr;
  const DateValue last = now_;
  context_->clock = [last] { return last; };
}

Object Outlook::Application() {
  return app_->AsObject();
}

// ---- configuration ----

void Outlook::SetVersion(std::string version) {
  app_->SetVersion(std::move(version));
}

void Outlook::SetNow(DateValue now) {
  now_ = now;
  context_->clock = [this] { return now_; };
}

void Outlook::SetClock(std::function<DateValue()> clock) {
  context_->clock = std::move(clock);
}

void Outlook::AdvanceClock(double seconds) {
  SetNow(DateValue{context_->Now().serial + seconds / 86400.0});
}

void Outlook::SetCreateObject(std::function<Object(std::string_view)> create) {
  context_->createObject = std::move(create);
}

void Outlook::SetCommandBars(std::function<Object(SimWindow&)> make) {
  context_->commandBars = std::move(make);
}

void Outlook::SetMailboxName(std::string name) {
  Root()->SetName(std::move(name));
}

void Outlook::StartsWithoutExplorer() {
  for (const auto& explorer : Explorers()) {
    app_->ForgetWindow(*explorer);
    app_->explorers().Remove(*explorer);
  }
}

// ---- folders ----

std::shared_ptr<SimFolder> Outlook::DefaultFolder(int32_t kind) {
  auto folder = app_->session().DefaultFolder(kind);
  if (!folder) throw InvalidParameter();
  return folder;
}

std::shared_ptr<SimFolder> Outlook::Calendar() {
  return DefaultFolder(kFolderCalendar);
}
std::shared_ptr<SimFolder> Outlook::Tasks() {
  return DefaultFolder(kFolderTasks);
}
std::shared_ptr<SimFolder> Outlook::Inbox() {
  return DefaultFolder(kFolderInbox);
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
  return Place(FolderOr(std::move(folder), kFolderCalendar), item, *context_);
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
  return Place(FolderOr(std::move(folder), kFolderTasks), item, *context_);
}

std::shared_ptr<SimMail> Outlook::AddMail(std::string subject, std::shared_ptr<SimFolder> folder) {
  auto item = std::make_shared<SimMail>(context_);
  item->SetField("Subject", std::move(subject));
  return Place(FolderOr(std::move(folder), kFolderInbox), item, *context_);
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

// ---- windows ----

std::shared_ptr<SimExplorer> Outlook::OpenExplorer(std::shared_ptr<SimFolder> folder) {
  auto explorer = app_->explorers().Add(folder ? folder : Inbox());
  explorer->Display();
  return explorer;
}

std::shared_ptr<SimInspector> Outlook::OpenInspector(std::shared_ptr<SimItem> item) {
  auto inspector = app_->inspectors().Add(item);
  inspector->Display();
  return inspector;
}

std::shared_ptr<SimExplorer> Outlook::ActiveExplorer() {
  return app_->ActiveExplorer();
}
std::shared_ptr<SimInspector> Outlook::ActiveInspector() {
  return app_->ActiveInspector();
}

std::vector<std::shared_ptr<SimExplorer>> Outlook::Explorers() {
  return app_->explorers().list();
}

std::vector<std::shared_ptr<SimInspector>> Outlook::Inspectors() {
  return app_->inspectors().list();
}

void Outlook::Select(SimExplorer& explorer, std::vector<std::shared_ptr<SimItem>> items) {
  explorer.Select(std::move(items));
}

bool Outlook::SwitchFolder(SimExplorer& explorer, std::shared_ptr<SimFolder> folder) {
  return explorer.SwitchFolder(folder);
}

void Outlook::Activate(SimWindow& window) {
  window.Activate();
}
void Outlook::Close(SimWindow& window) {
  window.Close();
}
void Outlook::Quit() {
  app_->Quit();
}

// ---- fault injection ----

std::shared_ptr<SimObject> Outlook::Resolve(std::string_view path) {
  if (path.empty()) return app_;
  return FollowPath(app_, path);
}

void Outlook::FailAt(std::string_view memberPath, int32_t number, std::string description,
                     int times) {
  std::string_view objectPath;
  std::string_view member;
  SplitLastMember(memberPath, objectPath, member);
  Resolve(objectPath)->FailMember(member, number, std::move(description), times);
}

}  // namespace qvx::sim
