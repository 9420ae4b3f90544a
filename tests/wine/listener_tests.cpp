// The companion's way back: a hidden top-level window with the caption the
// companion looks for, where it posts its registered messages from its own
// process (ErrorReport posts one). What each value does is the
// listener_values scenario's.
#include <windows.h>

#include <string>

#include "harness/addin_session.h"
#include "harness/check.h"
#include "harness/companion_journal.h"
#include "harness/registry_keys.h"
#include "harness/ui_watcher.h"
#include "sim/explorer.h"

namespace qvx::winetest {

// The window comes with the heavy stage, not on connection, passes foreign
// messages on to its own procedure, and goes when closing the last explorer
// tears the add-in down from inside its own client's Close handler.
TEST(Listener, IsAHiddenTopLevelWindowOfTheHostThreadUntilTheLastExplorerCloses) {
  WriteSettings({{L"DBChoice", L"1"}, {L"DBConnectionString", L""}});
  ClearJournal();
  AddinSession session;
  ASSERT_EQ(session.Connect(), S_OK);
  EXPECT_TRUE(FindClientWindow() == nullptr);
  ASSERT_EQ(session.StartupComplete(), S_OK);

  HWND window = FindClientWindow();
  ASSERT_TRUE(window != nullptr);
  EXPECT_TRUE(!IsWindowVisible(window));
  EXPECT_TRUE(GetAncestor(window, GA_PARENT) == GetDesktopWindow());
  DWORD process = 0;
  EXPECT_EQ(GetWindowThreadProcessId(window, &process), GetCurrentThreadId());
  EXPECT_EQ(process, GetCurrentProcessId());
  const wchar_t probe[] = L"probe";  // a foreign message, with its lParam
  SendMessageW(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(probe));
  wchar_t caption[64] = {};
  GetWindowTextW(window, caption, 64);
  EXPECT_TRUE(std::wstring(caption) == L"probe");
  SetWindowTextW(window, L"Client Window - Quorvix Client for Outlook");

  auto explorer = session.world().ActiveExplorer();
  ASSERT_TRUE(explorer != nullptr);
  session.world().Close(*explorer);
  EXPECT_TRUE(PumpUntil([window] { return !IsWindow(window); }));
  EXPECT_TRUE(FinishedLaunches().empty());
  EXPECT_TRUE(Watcher().Take().empty());
}

}  // namespace qvx::winetest
