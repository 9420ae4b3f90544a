// The POSIX platform of a benchmark run in a private temporary folder: the
// registry file, a stand-in companion (found, as in a real installation, but
// never spawned: launches are recorded) and a namespace of its own for the
// listener windows. The folder goes with the object. On it, a whole add-in in
// a simulated host that runs, started when asked and shut down at its end.
//
//   BenchPlatform p;
//   p.Set("DBChoice", "1");
//   BenchAddin world(p);
//   world.Start();
#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <string_view>

#include "addin/addin.h"
#include "platform/posix/file_registry.h"
#include "platform/posix/posix_objects.h"
#include "platform/posix/posix_system.h"
#include "platform/posix/scripted_ui.h"
#include "platform/posix/socket_message_windows.h"
#include "sim/outlook.h"
#include "sim/temp_folder.h"

namespace qvx::bench {

struct BenchPlatform {
  BenchPlatform() {
    std::ofstream(folder.File("QuorvixClient.exe")) << "stand-in";
    options.home = folder.path();
    options.addinFolder = folder.path();
    options.spawn = false;
    setenv("QVX_WINDOW_NAMESPACE", std::filesystem::path(folder.path()).filename().c_str(), 1);
  }

  // A text value of the add-in's settings key.
  void Set(std::string_view name, const std::string& value) {
    registry.SetString("Software\\Zenbrook\\QVX", name, value);
  }

  sim::TempFolder folder{"qvx-bench"};
  platform::FileRegistry registry{folder.File("registry.qvxreg")};
  platform::PosixSystemOptions options;
};

struct BenchAddin {
  explicit BenchAddin(BenchPlatform& p) : system(p.options), objects(system) {
    objects.RegisterRunning("Outlook.Application", [this] { return host.Application(); });
    addin = std::make_unique<QVXClientAddin>(platform::Platform{.registry = &p.registry,
                                                                .objects = &objects,
                                                                .ui = &ui,
                                                                .system = &system,
                                                                .windows = &windows});
  }
  ~BenchAddin() { addin->OnBeginShutdown(); }

  // Connection (the settings read) and start-up complete.
  void Start() {
    addin->OnConnection(application, 1, Object());
    addin->OnStartupComplete();
  }

  sim::Outlook host;
  Object application = host.Application();
  platform::PosixSystemServices system;
  platform::PosixObjectFactory objects;
  platform::ScriptedUserInterface ui;
  platform::SocketMessageWindows windows;
  std::unique_ptr<QVXClientAddin> addin;
};

}  // namespace qvx::bench
