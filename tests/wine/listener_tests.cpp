// The companion's way back: a hidden top-level window with the caption the
// companion looks for, and the registered messages it posts there from its
// own process.
#include <windows.h>

#include <string>
#include <vector>

#include "harness/addin_session.h"
#include "harness/check.h"
#include "harness/companion_journal.h"
#include "harness/registry_keys.h"
#include "harness/ui_watcher.h"

namespace qvx::winetest {

WINE_TEST(Listener, IsAHiddenTopLevelWindowOfTheHostThread) {
  WriteSettings({{L"DBChoice", L"1"}, {L"DBConnectionString", L""}});
  AddinSession session;
  CHECK(FindClientWindow() == nullptr);
  REQUIRE_EQ(session.Connect(), S_OK);
  // The channel opens with the heavy stage, not on connection.
  CHECK(FindClientWindow() == nullptr);
  REQUIRE_EQ(session.StartupComplete(), S_OK);

  HWND window = FindClientWindow();
  REQUIRE(window != nullptr);
  CHECK(!IsWindowVisible(window));
  CHECK(GetAncestor(window, GA_PARENT) == GetDesktopWindow());
  DWORD process = 0;
  CHECK_EQ(GetWindowThreadProcessId(window, &process), GetCurrentThreadId());
  CHECK_EQ(process, GetCurrentProcessId());
  // Messages that are not the add-in's go on to the window's own procedure.
  wchar_t caption[64] = {};
  GetWindowTextW(window, caption, 64);
  CHECK_EQ(std::wstring(caption), std::wstring(L"Client Window - Quorvix Client for Outlook"));
}

WINE_TEST(Listener, ClientMessagesFromAnotherProcessReachTheAddin) {
  WriteSettings({{L"DBChoice", L"1"}, {L"DBConnectionString", L""}});
  ClearJournal();
  AddinSession session;
  session.Start();
  REQUIRE(FinishedLaunches().empty());
  auto application = session.At("");
  int reads = application->CallCount("ActiveWindow");
  // 3 means nothing: it is only kept. 1 runs the unattended synchronisation,
  // section 28, even while one runs. The messages are handled in order.
  for (const int value : {3, 1, 1}) CHECK_EQ(PostFromAnotherProcess(L"ZNB_QVX_Client", value), 0u);
  CHECK(PumpUntil([] { return JournalLines() >= 2; }));
  CHECK_EQ(application->CallCount("ActiveWindow"), reads);
  // 2 (items changed) and 0 (settings changed, read again) refresh the
  // toolbars, which asks the host for its active window.
  for (const int value : {2, 0}) {
    CHECK_EQ(PostFromAnotherProcess(L"ZNB_QVX_Client", value), 0u);
    if (!CHECK(PumpUntil([&] { return application->CallCount("ActiveWindow") > reads; }))) {
      Note("message " + std::to_string(value));
    }
    reads = application->CallCount("ActiveWindow");
  }
  CHECK_EQ(FinishedLaunches(), (std::vector<std::string>{"28", "28"}));
  CHECK(Watcher().Take().empty());
  DeleteTree(kSettingsKey);
}

}  // namespace qvx::winetest
