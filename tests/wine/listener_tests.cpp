// The companion's way back: a hidden top-level window with the caption the
// companion looks for, and the registered messages it posts there from its
// own process. What each value does is the listener_values scenario's.
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
namespace {

// A configured user with no section to start, the journal empty.
struct ConfiguredSession {
  bool prepared =
      (WriteSettings({{L"DBChoice", L"1"}, {L"DBConnectionString", L""}}), ClearJournal(), true);
  AddinSession session;
};

}  // namespace

// The window comes with the heavy stage, not on connection, and goes when
// closing the last explorer tears the add-in down from inside its own
// client's Close handler.
TEST(Listener, IsAHiddenTopLevelWindowOfTheHostThreadUntilTheLastExplorerCloses) {
  ConfiguredSession c;
  EXPECT_TRUE(FindClientWindow() == nullptr);
  ASSERT_EQ(c.session.Connect(), S_OK);
  EXPECT_TRUE(FindClientWindow() == nullptr);
  ASSERT_EQ(c.session.StartupComplete(), S_OK);

  HWND window = FindClientWindow();
  ASSERT_TRUE(window != nullptr);
  EXPECT_TRUE(!IsWindowVisible(window));
  EXPECT_TRUE(GetAncestor(window, GA_PARENT) == GetDesktopWindow());
  DWORD process = 0;
  EXPECT_EQ(GetWindowThreadProcessId(window, &process), GetCurrentThreadId());
  EXPECT_EQ(process, GetCurrentProcessId());

  auto explorer = c.session.world().ActiveExplorer();
  ASSERT_TRUE(explorer != nullptr);
  c.session.world().Close(*explorer);
  EXPECT_TRUE(PumpUntil([] { return FindClientWindow() == nullptr; }));
  EXPECT_TRUE(Watcher().Take().empty());
}

// Ten thousand messages that are not the add-in's, and values that mean
// nothing, go by; the window stays, passes foreign messages on unchanged to
// its own procedure, and the companion's 1 from another process still runs
// the unattended synchronisation, section 28, even while one runs.
TEST(Listener, ClientMessagesFromAnotherProcessReachTheAddinPastABurstOfForeignOnes) {
  ConfiguredSession c;
  c.session.Start();
  HWND window = FindClientWindow();
  ASSERT_TRUE(window != nullptr);
  for (int i = 0; i < 10000; ++i) {
    PostMessageW(window, WM_USER + (i % 512), static_cast<WPARAM>(i), static_cast<LPARAM>(-i));
    if (i % 1000 == 999) PumpOnce();  // a thread's queue holds 10,000 at most
  }
  EXPECT_EQ(PostFromAnotherProcess(L"ZNB_QVX_Client", 65536), 0u);
  EXPECT_EQ(PostFromAnotherProcess(L"ZNB_QVX_Manager", 1), 0u);
  PumpOnce();
  EXPECT_TRUE(FindClientWindow() == window);
  EXPECT_TRUE(FinishedLaunches().empty());
  // A foreign message reaches the window's own procedure with its lParam.
  const wchar_t probe[] = L"probe";
  SendMessageW(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(probe));
  wchar_t caption[64] = {};
  GetWindowTextW(window, caption, 64);
  EXPECT_TRUE(std::wstring(caption) == L"probe");
  SetWindowTextW(window, L"Client Window - Quorvix Client for Outlook");
  for (const int value : {1, 1}) EXPECT_EQ(PostFromAnotherProcess(L"ZNB_QVX_Client", value), 0u);
  EXPECT_TRUE(PumpUntil([] { return JournalLines() >= 2; }));
  EXPECT_EQ(FinishedLaunches(), (std::vector<std::string>{"28", "28"}));
  EXPECT_TRUE(Watcher().Take().empty());
}

// The companion writes settings with the registry API from its own process,
// then says so: the add-in's next decision (the projects' colours) shows
// the new values.
TEST(Listener, SettingsWrittenOutsideAreReadWhenTheClientSaysSo) {
  ConfiguredSession c;
  c.session.Start();
  EXPECT_TRUE(c.session.world().FindCategory("Alpha") == nullptr);
  EXPECT_EQ(
      PostFromAnotherProcess(L"ZNB_QVX_Client", 0,
                             {L"AddProjectColorCodes=-1", L"MyProjectsTasks=Alpha,5,,:Design,"}),
      0u);
  EXPECT_TRUE(PumpUntil([&] { return c.session.world().FindCategory("Alpha") != nullptr; }));
  EXPECT_TRUE(Watcher().Take().empty());
}

}  // namespace qvx::winetest
