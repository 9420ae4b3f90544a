// The world a scenario runs in: a simulated host, the POSIX platform (a
// registry file, the scripted user interface, the launcher, the listener
// sockets) and, once started, the add-in itself. Everything lives in a
// private temporary folder that goes with the world.
//
// Launched programs are the companion stand-ins from the add-in's folder
// ($QVX_ADDIN_FOLDER, else the folder of the build); they write their
// journal into the world's folder and post back to the world's own
// listener window namespace, so scenarios can run side by side.
#pragma once

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "addin/addin.h"
#include "platform/posix/embedded_resources.h"
#include "platform/posix/file_registry.h"
#include "platform/posix/posix_objects.h"
#include "platform/posix/posix_system.h"
#include "platform/posix/scripted_ui.h"
#include "platform/posix/socket_message_windows.h"
#include "sim/fake_object.h"
#include "sim/mail_library_standin.h"
#include "sim/outlook.h"
#include "sim/ribbon/ribbon_host.h"
#include "sim/ribbon/scripted_ribbon_addin.h"

namespace qvx::scenario {

// The key the add-in shares with the companion.
inline constexpr char kSettingsKey[] = "Software\\Zenbrook\\QVX";

class World {
 public:
  World();
  ~World();
  World(const World&) = delete;
  World& operator=(const World&) = delete;

  sim::Outlook& host() { return *host_; }
  platform::FileRegistry& registry() { return *registry_; }
  platform::ScriptedUserInterface& ui() { return ui_; }
  platform::PosixSystemServices& system() { return *system_; }
  platform::PosixObjectFactory& objects() { return *objects_; }
  platform::SocketMessageWindows& windows() { return windows_; }

  // Installs the mail library stand-in; absent until then.
  void InstallMailLibrary(const sim::MailLibraryOptions& options);
  sim::MailLibraryStandIn* mailLibrary() { return mailLibrary_.get(); }

  // The add-in, made on first use (as the host loads it).
  QVXClientAddin& addin();
  bool HasAddin() const { return addin_ != nullptr; }

  // The host's ribbon (IRibbonUI), handed to the add-in when the ribbon loads.
  sim::FakeObject& ribbonUi();

  // The simulated Office ribbon (its windows, what they show), and the add-in
  // side it calls: the script's own markup and callbacks ("ribbon markup",
  // "ribbon answer") in front of the add-in's.
  sim::RibbonHost& ribbonHost();
  sim::ScriptedRibbonAddin& scriptedRibbon();
  // The ribbon window the user looks at, once "ribbon open" showed one.
  sim::RibbonWindow* ribbonWindow = nullptr;

  // Lets pending work through: queued host events and window messages.
  // Returns how many ran.
  size_t Pump();
  // Runs, when set, each time the add-in itself lets pending work through
  // (DoEvents), before that work runs: what happens to the user's world while
  // the add-in is in the middle of a loop.
  std::function<void()> whileAddinPumps;
  // Waits for the launched programs to end (before reading their journal).
  void WaitForPrograms() { system_->WaitForChildren(); }
  // Waits until the launched programs have ended and everything they posted
  // has been delivered, and so on for the programs that this delivery
  // started. False if programs were still being started after `rounds`
  // rounds (a companion that answers every call with a call).
  bool SettleCompanion(int rounds = 100);
  // The companion stand-ins' journal lines so far.
  std::vector<std::string> JournalLines() const;
  const std::string& folder() const { return folder_; }

  // Expectation cursors: each expectation consumes the oldest record not yet
  // expected, so a script states what happened in order.
  size_t launchesSeen = 0;
  size_t boxesSeen = 0;
  size_t formsSeen = 0;
  size_t ribbonActionsSeen = 0;
  int ribbonInvalidationsSeen = 0;
  // Journal lines already expected, by position; programs run side by side,
  // so their lines are matched in any order.
  std::vector<bool> journalTaken;

  // Forgets the boxes, dialogs, launches, objects asked for, and ribbon calls
  // and actions recorded so far, and the expectations' places in them; what
  // comes later is recorded as before. For long runs that read each record
  // once (the soak).
  void ForgetRecords();

  // Where "say" and "show" write; the runner's output.
  std::ostream* out = nullptr;

  // Ends the run: the host shuts the add-in down if it still runs.
  void Finish();
  // The host exits and starts again: it shuts the add-in down as at the end
  // of a run, drops temporary command bars and its ribbons, and loads a
  // fresh add-in object at its next use. Windows, items and the registry stay.
  void RestartHost();

 private:
  std::string folder_;
  std::unique_ptr<platform::FileRegistry> registry_;
  platform::ScriptedUserInterface ui_;
  std::unique_ptr<platform::PosixSystemServices> system_;
  std::unique_ptr<platform::PosixObjectFactory> objects_;
  platform::SocketMessageWindows windows_;
  platform::EmbeddedResources resources_{platform::ProductResources()};
  std::unique_ptr<sim::Outlook> host_;
  std::unique_ptr<sim::MailLibraryStandIn> mailLibrary_;
  std::unique_ptr<QVXClientAddin> addin_;
  std::shared_ptr<sim::FakeObject> ribbonUi_;
  std::unique_ptr<sim::AddinRibbonClient> ribbonClient_;
  std::unique_ptr<sim::ScriptedRibbonAddin> scriptedRibbon_;
  std::unique_ptr<sim::RibbonHost> ribbonHost_;
};

}  // namespace qvx::scenario
