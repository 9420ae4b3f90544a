// A whole add-in state over the POSIX platform, for tests of procedures that
// take `AddinState&`: launches are recorded, not spawned; boxes and forms are
// recorded by the scripted user interface.
#pragma once

#include <memory>
#include <string>

#include "addin/state.h"
#include "platform/posix/posix_objects.h"
#include "platform/posix/posix_system.h"
#include "platform/posix/scripted_ui.h"

namespace qvx::testing {

struct TestAddin {
  TestAddin() : TestAddin(RecordingOptions("/opt/qvx")) {}
  explicit TestAddin(platform::PosixSystemOptions options)
      : system(std::move(options)),
        objects(system),
        s(platform::Platform{.registry = nullptr,
                             .objects = &objects,
                             .ui = &ui,
                             .system = &system,
                             .windows = nullptr}) {
    s.main.objMySettings = std::make_unique<cMySettings>();
  }

  // Launches recorded only, the add-in's folder as given.
  static platform::PosixSystemOptions RecordingOptions(std::string addinFolder) {
    platform::PosixSystemOptions options;
    options.addinFolder = std::move(addinFolder);
    options.spawn = false;
    return options;
  }

  cMySettings& settings() { return *s.main.objMySettings; }

  platform::PosixSystemServices system;
  platform::PosixObjectFactory objects;
  platform::ScriptedUserInterface ui;
  AddinState s;
};

}  // namespace qvx::testing
