#include "apps/qvx-sim/world.h"

#include "apps/QuorvixClient/post_message.h"

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "state/main_globals.h"

namespace qvx::scenario {
namespace {

std::string MakeFolder() {
  std::string base = std::filesystem::temp_directory_path().string() + "/qvx-sim-XXXXXX";
  if (mkdtemp(base.data()) == nullptr) throw std::runtime_error("cannot make a temporary folder");
  return base;
}

std::string StandInFolder() {
  if (const char* env = std::getenv("QVX_ADDIN_FOLDER"); env != nullptr && *env != '\0') {
    return env;
  }
  return QVX_STANDIN_FOLDER;
}

}  // namespace

World::World() : folder_(MakeFolder()) {
  std::filesystem::create_directories(folder_ + "/home/Documents");
  // Programs the add-in starts inherit these: they journal into this world
  // and post to this world's listener windows only.
  setenv("QVX_COMPANION_JOURNAL", (folder_ + "/companion-journal.txt").c_str(), 1);
  setenv("QVX_WINDOW_NAMESPACE", std::filesystem::path(folder_).filename().c_str(), 1);
  registry_ = std::make_unique<platform::FileRegistry>(folder_ + "/registry.qvxreg");
  platform::PosixSystemOptions options;
  options.home = folder_ + "/home";
  options.addinFolder = StandInFolder();
  system_ = std::make_unique<platform::PosixSystemServices>(options);
  objects_ = std::make_unique<platform::PosixObjectFactory>(*system_);
  host_ = std::make_unique<sim::Outlook>();
  objects_->RegisterRunning("Outlook.Application", [this] { return host_->Application(); });
  system_->SetDoEventsHook([this] {
    if (whileAddinPumps) whileAddinPumps();
    Pump();
  });
}

World::~World() {
  ribbonWindow = nullptr;
  ribbonHost_.reset();  // the ribbon calls the add-in: it goes first
  scriptedRibbon_.reset();
  ribbonClient_.reset();
  addin_.reset();
  host_.reset();
  system_->WaitForChildren();
  unsetenv(standin::kPostMessageVariable);  // "companion answers" lasts one world
  std::error_code ignored;
  std::filesystem::remove_all(folder_, ignored);
}

sim::FakeObject& World::ribbonUi() {
  if (!ribbonUi_) {
    ribbonUi_ = std::make_shared<sim::FakeObject>("IRibbonUI");
    ribbonUi_->Method("Invalidate", 0, 0, [](sim::Args&) { return Variant(); })
        .Method("InvalidateControl", 1, 1, [](sim::Args&) { return Variant(); });
  }
  return *ribbonUi_;
}

sim::ScriptedRibbonAddin& World::scriptedRibbon() {
  if (!scriptedRibbon_) {
    ribbonClient_ =
        std::make_unique<sim::AddinRibbonClient>([this]() -> QVXClientAddin& { return addin(); });
    scriptedRibbon_ = std::make_unique<sim::ScriptedRibbonAddin>(ribbonClient_.get());
  }
  return *scriptedRibbon_;
}

sim::RibbonHost& World::ribbonHost() {
  if (!ribbonHost_) ribbonHost_ = std::make_unique<sim::RibbonHost>(scriptedRibbon());
  return *ribbonHost_;
}

QVXClientAddin& World::addin() {
  if (!addin_) {
    platform::Platform platform;
    platform.registry = registry_.get();
    platform.objects = objects_.get();
    platform.ui = &ui_;
    platform.system = system_.get();
    platform.windows = &windows_;
    platform.resources = &resources_;
    addin_ = std::make_unique<QVXClientAddin>(platform);
  }
  return *addin_;
}

void World::InstallMailLibrary(const sim::MailLibraryOptions& options) {
  mailLibrary_ = std::make_unique<sim::MailLibraryStandIn>(options);
  mailLibrary_->Install(*objects_);
}

size_t World::Pump() {
  // Window messages and host events may each cause more of the other.
  size_t total = 0;
  for (int round = 0; round < 100; ++round) {
    const size_t ran = host_->Pending().RunPending() + windows_.DispatchPending();
    if (ran == 0) break;
    total += ran;
  }
  return total;
}

bool World::SettleCompanion(int rounds) {
  // A program's post is in the listener's queue once the program has ended
  // (a local datagram is queued when it is sent), so reaping first and then
  // draining leaves nothing behind; a delivery may start programs again.
  for (int round = 0; round < rounds; ++round) {
    WaitForPrograms();
    if (Pump() == 0) return true;
  }
  return false;
}

std::vector<std::string> World::JournalLines() const {
  std::vector<std::string> lines;
  std::ifstream in(folder_ + "/companion-journal.txt", std::ios::binary);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

void World::Finish() {
  if (addin_ && addin_->state().main.phase != AddinPhase::TornDown &&
      addin_->state().main.phase != AddinPhase::NotConnected) {
    addin_->OnBeginShutdown();
    addin_->OnDisconnection(0);
  }
  system_->WaitForChildren();
}

void World::ForgetRecords() {
  ui_.ForgetShown();
  system_->ClearRecords();
  objects_->ForgetRequests();
  boxesSeen = 0;
  formsSeen = 0;
  launchesSeen = 0;
  if (scriptedRibbon_) scriptedRibbon_->ClearCalls();
  if (ribbonHost_) ribbonHost_->ClearActions();
  ribbonActionsSeen = 0;
}

void World::RestartHost() {
  Finish();
  // A new host loads its ribbons anew; the script's stand-in markup stays.
  ribbonWindow = nullptr;
  ribbonHost_.reset();
  ribbonActionsSeen = 0;
  ribbonInvalidationsSeen = 0;
  addin_.reset();
  host_->Restart();
}

}  // namespace qvx::scenario
