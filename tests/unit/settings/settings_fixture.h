// A whole add-in state for the settings tests: the file registry on a
// temporary file, a user interface that records the forms shown
// (the error report's "txtReport" text), a fixed clock, and an inert host in
// objOutlook so that the central reporter needs no Outlook.
#pragma once

#include <stdlib.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "addin/upward_calls.h"
#include "core/dates.h"
#include "platform/posix/file_registry.h"
#include "sim/inert_platform.h"
#include "state/addin_state.h"

namespace qvx::testing {

inline constexpr const char* kQvxKey = "Software\\Zenbrook\\QVX";

class RecordingUi final : public platform::UserInterface {
 public:
  int MessageBox(std::string_view, int, std::string_view) override { return platform::msgbox::kOk; }
  void ShowModal(platform::FormModel& form) override {
    const platform::FormControl* report = form.Find("txtReport");
    reports.push_back(report != nullptr ? report->text : std::string());
  }
  std::vector<std::string> reports;  // txtReport of each form shown
};

// Answers every member with 438, like a host that has none.
class InertHost final : public HostObject {
 public:
  Variant Invoke(std::string_view, InvokeKind, std::vector<Variant>&) override {
    throw Failure::Runtime(err::kNoSuchMember);
  }
  std::string TypeName() const override { return "Application"; }
  std::vector<Variant> Enumerate() override { return {}; }
  Subscription Subscribe(std::string_view, EventHandler) override { return {}; }
};

// A folder that is removed with the fixture.
class TempFolder {
 public:
  TempFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "qvx-settings-XXXXXX").string();
    path_ = mkdtemp(pattern.data());
  }
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  std::string File(std::string_view name) const { return path_ + "/" + std::string(name); }

 private:
  std::string path_;
};

struct SettingsFixture {
  explicit SettingsFixture(platform::RegistryApi* registryOverride = nullptr)
      : registry(folder.File("registry.txt")),
        s(platform::Platform{.registry = registryOverride ? registryOverride : &registry,
                             .objects = &objects,
                             .ui = &ui,
                             .system = &system,
                             .windows = nullptr}) {
    ConnectUpwardCalls(s);
    s.main.objOutlook = Object(std::make_shared<InertHost>());
  }

  TempFolder folder;
  platform::FileRegistry registry;
  RecordingUi ui;
  sim::InertSystem system;
  sim::NoObjects objects;
  AddinState s;
};

// The first line of a report, "At Line: 20", and its label line.
inline std::string ReportLine(const std::string& report, size_t index) {
  size_t start = 0;
  for (size_t i = 0; i < index; ++i) start = report.find("\r\n", start) + 2;
  return report.substr(start, report.find("\r\n", start) - start);
}

}  // namespace qvx::testing
