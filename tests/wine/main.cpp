// The Wine test host: plays Outlook for QVXClient.dll and checks what the
// add-in does, through the same doors Outlook uses (the DLL's exports, the
// registry, IDTExtensibility2, IDispatch, window messages and the programs
// it starts).
//
//   wine qvx_wine_tests.exe [--list] [FILTER]
//   wine qvx_wine_tests.exe --show DIALOG    (for tools/render-dialogs.sh)
//   wine qvx_wine_tests.exe --time-startup [PROJECTS [STARTS]]   (startup_timing.h)
//
// FILTER is a substring of "Suite.Name". Exit code 0 when every test ran
// without failure. --show brings up one of the add-in's dialogs and leaves
// it open until it is closed.
#include <windows.h>

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "dialog_pictures.h"
#include "harness/check.h"
#include "harness/companion_journal.h"
#include "harness/ui_watcher.h"
#include "harness/user_locale.h"
#include "startup_timing.h"

int main(int argc, char** argv) {
  std::string filter;
  std::string show;
  bool timeStartup = false;
  size_t projects = 1000;
  int starts = 5;
  for (int i = 1; i < argc; ++i) {
    const std::string arg = argv[i];
    if (arg == "--list") {
      qvx::winetest::ListAll();
      return 0;
    }
    if (arg == "--time-startup") {
      timeStartup = true;
      if (i + 1 < argc && std::isdigit(static_cast<unsigned char>(argv[i + 1][0]))) {
        projects = std::strtoul(argv[++i], nullptr, 10);
      }
      if (i + 1 < argc && std::isdigit(static_cast<unsigned char>(argv[i + 1][0]))) {
        starts = std::max(1, std::atoi(argv[++i]));
      }
      continue;
    }
    if (arg == "--show" && i + 1 < argc) {
      show = argv[++i];
      continue;
    }
    filter = arg;
  }
  // The host's user interface thread: a single-threaded apartment with OLE.
  if (FAILED(OleInitialize(nullptr))) {
    std::printf("OleInitialize failed\n");
    return 1;
  }
  if (!show.empty()) {
    // No watcher: the dialog stays until it is closed from outside.
    const int shown = qvx::winetest::ShowDialog(show);
    OleUninitialize();
    return shown;
  }
  qvx::winetest::SetUpJournal();
  qvx::winetest::Watcher();  // from now on no modal window can block a test
  if (timeStartup) {
    const int timed = qvx::winetest::TimeStartup(projects, starts);
    OleUninitialize();
    return timed;
  }
  const int result = qvx::winetest::RunAll(filter);
  qvx::winetest::SignalUserLocaleRun(result);
  OleUninitialize();
  return result;
}
