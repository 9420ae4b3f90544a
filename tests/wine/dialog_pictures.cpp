// The add-in's real dialogs, each brought up through the DLL as a host would
// bring it up, and left open for tools/render-dialogs.sh to photograph.
//
//   wine qvx_wine_tests.exe --show error-report
//
// Each returns when the dialog is closed (the script ends the program).
#include "dialog_pictures.h"

#include <cstdio>
#include <functional>
#include <map>

#include "harness/addin_session.h"
#include "harness/registry_keys.h"

namespace qvx::winetest {
namespace {

// The error report of a failure while the add-in starts.
void ErrorReport() {
  WriteSettings({{L"DBChoice", L"1"}});
  AddinSession session;
  session.world().FailAt("ActiveExplorer", static_cast<int32_t>(0x8004010F),
                         "The explorer could not be reached.");
  session.Connect();
  session.StartupComplete();
}

}  // namespace

int ShowDialog(const std::string& name) {
  const std::map<std::string, std::function<void()>> dialogs = {{"error-report", ErrorReport}};
  const auto it = dialogs.find(name);
  if (it == dialogs.end()) {
    std::printf("no dialog \"%s\"; known: error-report\n", name.c_str());
    return 2;
  }
  it->second();
  return 0;
}

}  // namespace qvx::winetest
