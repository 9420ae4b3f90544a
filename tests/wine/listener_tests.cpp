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
#include "sim/categories.h"
#include "sim/explorer.h"

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

// The companion writes settings with the registry API from its own process,
// then says so: the add-in's next decision (the projects' colours) shows
// the new values.
WINE_TEST(Listener, SettingsWrittenOutsideAreReadWhenTheClientSaysSo) {
  WriteSettings({{L"DBChoice", L"1"}, {L"DBConnectionString", L""}});
  ClearJournal();
  AddinSession session;
  session.Start();
  CHECK(session.world().FindCategory("Alpha") == nullptr);
  CHECK_EQ(
      PostFromAnotherProcess(L"ZNB_QVX_Client", 0,
                             {L"AddProjectColorCodes=-1", L"MyProjectsTasks=Alpha,5,,:Design,"}),
      0u);
  CHECK(PumpUntil([&] { return session.world().FindCategory("Alpha") != nullptr; }));
  if (auto alpha = session.world().FindCategory("Alpha")) CHECK_EQ(alpha->color(), 5);
  CHECK(FinishedLaunches().empty());
  CHECK(Watcher().Take().empty());
  DeleteTree(kSettingsKey);
}

// Ten thousand messages that are not the add-in's, and values that mean
// nothing, go by; the window stays, passes foreign messages on unchanged to
// its own procedure, and the channel still works.
WINE_TEST(Listener, ABurstOfForeignMessagesAndUnknownValuesLeavesItWorking) {
  WriteSettings({{L"DBChoice", L"1"}, {L"DBConnectionString", L""}});
  ClearJournal();
  AddinSession session;
  session.Start();
  HWND window = FindClientWindow();
  REQUIRE(window != nullptr);
  for (int i = 0; i < 10000; ++i) {
    PostMessageW(window, WM_USER + (i % 512), static_cast<WPARAM>(i), static_cast<LPARAM>(-i));
    if (i % 1000 == 999) PumpOnce();  // a thread's queue holds 10,000 at most
  }
  for (const int value : {3, 7, -1, 65536}) {
    CHECK_EQ(PostFromAnotherProcess(L"ZNB_QVX_Client", value), 0u);
  }
  for (const int value : {1, 2, -5}) {
    CHECK_EQ(PostFromAnotherProcess(L"ZNB_QVX_Manager", value), 0u);
  }
  PumpOnce();
  CHECK(IsWindow(window));
  CHECK(FindClientWindow() == window);
  CHECK(FinishedLaunches().empty());
  // A foreign message reaches the window's own procedure with its lParam.
  const wchar_t probe[] = L"probe";
  SendMessageW(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(probe));
  wchar_t caption[64] = {};
  GetWindowTextW(window, caption, 64);
  CHECK(std::wstring(caption) == L"probe");
  SetWindowTextW(window, L"Client Window - Quorvix Client for Outlook");
  CHECK_EQ(PostFromAnotherProcess(L"ZNB_QVX_Client", 1), 0u);
  CHECK(PumpUntil([] { return JournalLines() >= 1; }));
  CHECK_EQ(FinishedLaunches(), std::vector<std::string>{"28"});
  CHECK(Watcher().Take().empty());
  DeleteTree(kSettingsKey);
}

// Closing the last explorer tears the add-in down from inside its own
// client's Close handler: the window and its subclass are gone.
WINE_TEST(Listener, ClosingTheLastExplorerTakesTheWindowAway) {
  WriteSettings({{L"DBChoice", L"1"}, {L"DBConnectionString", L""}});
  AddinSession session;
  session.Start();
  REQUIRE(FindClientWindow() != nullptr);
  auto explorer = session.world().ActiveExplorer();
  REQUIRE(explorer != nullptr);
  session.world().Close(*explorer);
  CHECK(PumpUntil([] { return FindClientWindow() == nullptr; }));
  CHECK(Watcher().Take().empty());
  DeleteTree(kSettingsKey);
}

}  // namespace qvx::winetest
