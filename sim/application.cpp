#include "sim/application.h"

#include <algorithm>

#include "core/text.h"
#include "sim/collection.h"
#include "sim/explorer.h"
#include "sim/explorers.h"
#include "sim/folder.h"
#include "sim/inspector.h"
#include "sim/item.h"
#include "sim/item_classes.h"
#include "sim/name_space.h"

namespace qvx::sim {

SimApplication::SimApplication(ContextPtr context, std::string version)
    : context_(std::move(context)), version_(std::move(version)) {
  CountCallsIn(context_);
}

void SimApplication::Init(std::string mailboxName, std::string userName) {
  context_->app = std::static_pointer_cast<SimApplication>(shared_from_this());
  session_ = std::make_shared<SimNameSpace>(context_, std::move(mailboxName), std::move(userName));
  session_->Init();
  explorers_ = std::make_shared<SimExplorers>(context_);
  inspectors_ = std::make_shared<SimInspectors>(context_);
}

template <class T>
std::shared_ptr<T> SimApplication::MostRecent() const {
  for (auto it = order_.rbegin(); it != order_.rend(); ++it) {
    auto window = it->lock();
    if (auto typed = std::dynamic_pointer_cast<T>(window); typed && !typed->closed()) return typed;
  }
  return nullptr;
}

std::shared_ptr<SimWindow> SimApplication::ActiveWindow() const {
  return MostRecent<SimWindow>();
}
std::shared_ptr<SimExplorer> SimApplication::ActiveExplorer() const {
  return MostRecent<SimExplorer>();
}
std::shared_ptr<SimInspector> SimApplication::ActiveInspector() const {
  return MostRecent<SimInspector>();
}

void SimApplication::ActivateWindow(const std::shared_ptr<SimWindow>& window) {
  auto previous = ActiveWindow();
  if (previous == window) return;
  if (previous) previous->Raise("Deactivate");
  ForgetWindow(*window);
  order_.push_back(window);
  window->Raise("Activate");
}

void SimApplication::ForgetWindow(const SimWindow& window) {
  std::erase_if(order_, [&](const auto& w) {
    auto locked = w.lock();
    return !locked || locked.get() == &window;
  });
}

void SimApplication::WindowClosing(const SimWindow& window) {
  if (auto* explorer = dynamic_cast<const SimExplorer*>(&window)) explorers_->Remove(*explorer);
  if (auto* inspector = dynamic_cast<const SimInspector*>(&window)) inspectors_->Remove(*inspector);
}

void SimApplication::WindowClosed(const std::shared_ptr<SimWindow>& window) {
  const bool wasActive = !order_.empty() && order_.back().lock() == window;
  ForgetWindow(*window);
  if (wasActive) {
    if (auto next = ActiveWindow()) next->Raise("Activate");
  }
  if (explorers_->list().empty() && inspectors_->list().empty() &&
      context_->quitOnLastWindowClose) {
    Quit();
  }
}

std::shared_ptr<SimInspector> SimApplication::DisplayItem(const std::shared_ptr<SimItem>& item) {
  for (const auto& inspector : inspectors_->list()) {
    if (inspector->item() == item) {
      inspector->Display();
      return inspector;
    }
  }
  auto inspector = inspectors_->Add(item);
  inspector->Display();
  return inspector;
}

void SimApplication::CloseInspectorsOf(const SimItem& item) {
  const auto open = inspectors_->list();
  for (const auto& inspector : open) {
    if (inspector->item().get() == &item) inspector->Close();
  }
}

std::shared_ptr<SimItem> SimApplication::CreateItem(int32_t itemType) {
  int32_t folderKind = host::olFolderDrafts;
  if (itemType == host::olAppointmentItem) folderKind = host::olFolderCalendar;
  if (itemType == host::olTaskItem) folderKind = host::olFolderTasks;
  auto item = MakeItem(context_, itemType);
  if (auto folder = session_->DefaultFolder(folderKind)) item->SetParent(folder);
  return item;
}

void SimApplication::Quit() {
  if (quit_) return;
  quit_ = true;
  Raise("Quit");
}

std::span<const std::string_view> SimApplication::EventNames() const {
  static constexpr std::array<std::string_view, 5> kEvents{"Quit", "Startup", "ItemSend", "NewMail",
                                                           "NewMailEx"};
  return kEvents;
}

const MemberTable& SimApplication::Members() const {
  static const MemberTable table = [] {
    MemberTable t;
    Define<SimApplication>(t)
        .Get("Version", [](SimApplication& a) { return Variant(a.version_); })
        .Get("Name", [](SimApplication&) { return Variant("Outlook"); })
        .Get("Explorers", [](SimApplication& a) { return a.explorers_->AsVariant(); })
        .Get("Inspectors", [](SimApplication& a) { return a.inspectors_->AsVariant(); })
        .Get("ActiveExplorer", [](SimApplication& a) { return OrNothing(a.ActiveExplorer()); })
        .Get("ActiveInspector", [](SimApplication& a) { return OrNothing(a.ActiveInspector()); })
        .Get("ActiveWindow", [](SimApplication& a) { return OrNothing(a.ActiveWindow()); })
        .Get("Session", [](SimApplication& a) { return a.session_->AsVariant(); })
        .Get("Application", [](SimApplication& a) { return a.AsVariant(); })
        .Get("Class", [](SimApplication&) { return Variant(int32_t{0}); })
        .Method("GetNamespace", 1, 1,
                [](SimApplication& a, Args& args) {
                  if (!EqualsText(TextArg(args, 0), "MAPI")) throw InvalidParameter();
                  return a.session_->AsVariant();
                })
        .Method("CreateObject", 1, 1,
                [](SimApplication& a, Args& args) {
                  if (!a.context_->createObject) throw CannotCreateObject();
                  Object created = a.context_->createObject(TextArg(args, 0));
                  if (created.IsNothing()) throw CannotCreateObject();
                  return Variant(created);
                })
        .Method("CreateItem", 1, 1,
                [](SimApplication& a, Args& args) {
                  return a.CreateItem(LongArg(args, 0))->AsVariant();
                })
        .Method("Quit", 0, 0, [](SimApplication& a, Args&) {
          a.Quit();
          return Variant();
        });
    return t;
  }();
  return table;
}

}  // namespace qvx::sim
