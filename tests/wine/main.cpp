// The Wine test host: plays Outlook for QVXClient.dll and checks what the
// add-in does, through the same doors Outlook uses (the DLL's exports, the
// registry, IDTExtensibility2, IDispatch, window messages and the programs
// it starts).
//
//   wine qvx_wine_tests.exe [--gtest_...] [FILTER]
//   wine qvx_wine_tests.exe --show DIALOG    (for tools/render-dialogs.sh)
//   wine qvx_wine_tests.exe --time-startup [PROJECTS [STARTS]]   (startup_timing.h)
//
// FILTER is a substring of "Suite.Name" (GoogleTest's flags work too). Exit
// code 0 when every test ran without failure and at least one ran. --show
// brings up one of the add-in's dialogs and leaves it open until it is closed.
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
  ::testing::InitGoogleTest(&argc, argv);
  std::string show;
  bool timeStartup = false;
  size_t projects = 1000;
  int starts = 5;
  for (int i = 1; i < argc; ++i) {
    const std::string arg = argv[i];
    if (arg == "--time-startup") {
      timeStartup = true;
      if (i + 1 < argc && std::isdigit(static_cast<unsigned char>(argv[i + 1][0]))) {
        projects = std::strtoul(argv[++i], nullptr, 10);
      }
      if (i + 1 < argc && std::isdigit(static_cast<unsigned char>(argv[i + 1][0]))) {
        starts = std::max(1, std::atoi(argv[++i]));
      }
    } else if (arg == "--show" && i + 1 < argc) {
      show = argv[++i];
    } else {
      GTEST_FLAG_SET(filter, "*" + arg + "*");
    }
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
  int result = RUN_ALL_TESTS();
  if (::testing::UnitTest::GetInstance()->test_to_run_count() == 0 && !GTEST_FLAG_GET(list_tests)) {
    result = 1;  // a filter that matches nothing is a mistake, not a pass
  }
  qvx::winetest::SignalUserLocaleRun(result);
  OleUninitialize();
  return result;
}
