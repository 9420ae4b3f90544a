#include "sim/test_addin.h"

#include <filesystem>
#include <memory>

#include "addin/upward_calls.h"
#include "sim/fake_object.h"

namespace qvx::sim {
namespace {

std::string MakeAddinFolder(const TempFolder& folder, const std::string& given) {
  if (!given.empty()) return given;
  std::filesystem::create_directories(folder.File("addin"));
  return folder.File("addin");
}

}  // namespace

TestAddin::TestAddin(TestAddinOptions options)
    : folder_("qvx-addin"),
      addinFolder_(MakeAddinFolder(folder_, options.addinFolder)),
      registry(folder_.File("registry.qvxreg")),
      system({.home = Home(),
              .addinFolder = addinFolder_,
              .spawn = false,
              .environment = options.environment}),
      objects(system),
      s(platform::Platform{.registry = options.registry ? options.registry : &registry,
                           .objects = &objects,
                           .ui = &ui,
                           .system = &system,
                           .windows = &windows,
                           .resources = &resources}) {
  ConnectUpwardCalls(s);
  std::filesystem::create_directories(Home());
  system.SetClock(ComposeDate(kNow));
  if (options.inertHost)
    s.main.objOutlook = std::make_shared<FakeObject>("Application")->AsObject();
}

void TestAddin::HostRunning(Outlook& host) {
  objects.RegisterRunning("Outlook.Application", [&host] { return host.Application(); });
}

std::vector<std::string> TestAddin::Reports() const {
  std::vector<std::string> reports;
  for (const platform::FormRecord& form : ui.Forms()) {
    for (const platform::FormControl& control : form.controls) {
      if (control.name == "txtReport") reports.push_back(control.text);
    }
  }
  return reports;
}

}  // namespace qvx::sim
