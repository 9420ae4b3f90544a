// A whole add-in state over the POSIX platform, for tests of procedures that
// take `AddinState&`: launches are recorded, not spawned; boxes and forms are
// recorded by the scripted user interface (the central reporter's form among
// them), and an inert host sits in objOutlook so that the reporter needs no
// Outlook.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "addin/upward_calls.h"
#include "platform/posix/native_object.h"
#include "platform/posix/posix_objects.h"
#include "platform/posix/posix_system.h"
#include "platform/posix/scripted_ui.h"
#include "settings/my_settings.h"
#include "state/addin_state.h"

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
    ConnectUpwardCalls(s);
    s.main.objMySettings = std::make_unique<cMySettings>();
    // A host with no members: every call fails with 438.
    s.main.objOutlook = Object(std::make_shared<platform::NativeObject>("Application"));
  }

  // Launches recorded only, the add-in's folder as given.
  static platform::PosixSystemOptions RecordingOptions(std::string addinFolder) {
    platform::PosixSystemOptions options;
    options.addinFolder = std::move(addinFolder);
    options.spawn = false;
    return options;
  }

  // The text of each failure report shown, in order.
  std::vector<std::string> Reports() const {
    std::vector<std::string> reports;
    for (const platform::FormRecord& form : ui.Forms()) {
      for (const platform::FormControl& control : form.controls) {
        if (control.name == "txtReport") reports.push_back(control.text);
      }
    }
    return reports;
  }

  // True if a report was shown for `label` at `line`.
  bool Reported(std::string_view label, int line) const {
    const std::string where =
        "At Line: " + std::to_string(line) + "\r\nIn Function: " + std::string(label) + "\r\n";
    for (const std::string& report : Reports()) {
      if (report.rfind(where, 0) == 0) return true;
    }
    return false;
  }

  cMySettings& settings() { return *s.main.objMySettings; }

  platform::PosixSystemServices system;
  platform::PosixObjectFactory objects;
  platform::ScriptedUserInterface ui;
  AddinState s;
};

}  // namespace qvx::testing
