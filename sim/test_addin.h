// The one way to build an add-in state for the tests and benchmarks of
// procedures that take `AddinState&`: the simulator's side of the platform,
// every service present and none reaching beyond a private folder.
//
//   registry  a registry file in the private folder, empty until written
//             (or the test's own RegistryApi)
//   system    launches, shell opens and command lines recorded, never run;
//             home and the add-in's folder in the private folder (or the
//             add-in folder given); a fixed clock
//   objects   the POSIX stand-ins; register ProgIDs and running objects on it
//   ui        boxes and forms recorded and answered from a script
//   windows   listeners that hear nothing (InertWindows)
//   resources the add-in's own, embedded in the build
//
// The add-in's `objOutlook` is a host with no members (every call fails
// with 438), so that the central reporter needs no Outlook, or Nothing when
// told; ConnectHost puts a simulated Outlook there.
//
//   sim::TestAddin t;
//   ReportError(t.s, ...);
//   t.Reports();  // the text of each failure report shown
#pragma once

#include <map>
#include <string>
#include <vector>

#include "core/dates.h"
#include "platform/posix/embedded_resources.h"
#include "platform/posix/file_registry.h"
#include "platform/posix/posix_objects.h"
#include "platform/posix/posix_system.h"
#include "platform/posix/scripted_ui.h"
#include "sim/inert_platform.h"
#include "sim/outlook.h"
#include "sim/temp_folder.h"
#include "state/addin_state.h"

namespace qvx::sim {

// A simulated host that outlives the add-in state holding its objects: a
// fixture derives from it before TestAddin.
//
//   struct Fixture : sim::SimulatedHost, sim::TestAddin { ... ConnectHost(host); ... };
struct SimulatedHost {
  Outlook host;
};

struct TestAddinOptions {
  std::string addinFolder{};  // "" : a folder "addin" of its own
  std::map<std::string, std::string> environment{};
  platform::RegistryApi* registry = nullptr;  // null: the registry file
  bool inertHost = true;  // false: no objOutlook at all, as before the host connects
};

class TestAddin {
 public:
  // The clock every test add-in reads.
  static constexpr DateParts kNow{2026, 3, 14, 15, 9, 26};

  explicit TestAddin(TestAddinOptions options = {});
  TestAddin(const TestAddin&) = delete;
  TestAddin& operator=(const TestAddin&) = delete;

  // The simulated host is the add-in's connected Application.
  void ConnectHost(Outlook& host) { s.main.objOutlook = host.Application(); }
  // The simulated host runs and can be attached to (GetObject).
  void HostRunning(Outlook& host);

  std::string Home() const { return folder_.File("home"); }
  const std::string& AddinFolder() const { return addinFolder_; }
  // The text of each failure report shown, in order (only the first failure
  // of a process is shown).
  std::vector<std::string> Reports() const;

 private:
  TempFolder folder_;
  std::string addinFolder_;

 public:
  platform::FileRegistry registry;
  platform::PosixSystemServices system;
  platform::PosixObjectFactory objects;
  platform::ScriptedUserInterface ui;
  InertWindows windows;
  platform::EmbeddedResources resources{platform::ProductResources()};
  AddinState s;
};

}  // namespace qvx::sim
