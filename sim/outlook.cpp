#include "sim/outlook.h"

#include "sim/command_bars.h"
#include "sim/explorer.h"
#include "sim/explorers.h"
#include "sim/folder.h"
#include "sim/inspector.h"
#include "sim/name_space.h"
#include "sim/path.h"

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

DateValue Outlook::Now() const {
  return context_->Now();
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

void Outlook::Restart() {
  std::vector<std::shared_ptr<SimWindow>> windows(app_->explorers().list().begin(),
                                                  app_->explorers().list().end());
  windows.insert(windows.end(), app_->inspectors().list().begin(), app_->inspectors().list().end());
  for (const auto& window : windows) {
    if (window->hasCommandBars()) window->commandBars().Restart();
  }
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

void Outlook::FailNextCallOnly(std::string_view memberPath, int32_t number,
                               std::string description) {
  std::string_view objectPath;
  std::string_view member;
  SplitLastMember(memberPath, objectPath, member);
  const std::shared_ptr<SimObject> object = Resolve(objectPath);
  object->faults().Clear(member);
  object->FailMember(member, number, std::move(description), 1);
}

}  // namespace qvx::sim
