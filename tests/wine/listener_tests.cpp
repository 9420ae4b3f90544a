// The companion's way back: a hidden top-level window with the caption the
// companion looks for, and the registered messages it posts there from its
// own process.
#include <windows.h>

#include <cwchar>
#include <string>
#include <vector>

#include "harness/addin_session.h"
#include "harness/check.h"
#include "harness/companion_journal.h"
#include "harness/registry_keys.h"
#include "harness/ui_watcher.h"

namespace qvx::winetest {
namespace {

void QuietSettings() {
  WriteSettings({{L"DBChoice", L"1"}, {L"DBConnectionString", L""}});
}

}  // namespace

WINE_TEST(Listener, IsAHiddenTopLevelWindowOfTheHostThread) {
  QuietSettings();
  ClearJournal();
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
  const LRESULT length = SendMessageW(window, WM_GETTEXTLENGTH, 0, 0);
  CHECK_EQ(static_cast<size_t>(length), std::wcslen(kClientWindowCaption));
}

WINE_TEST(Listener, ClientMessagesFromAnotherProcessReachTheAddin) {
  QuietSettings();
  ClearJournal();
  AddinSession session;
  session.Start();
  REQUIRE(FinishedLaunches().empty());
  auto application = session.host().At("");
  // 1 runs the unattended synchronisation, section 28: a marker that every
  // message posted before it has been handled.
  const auto handledSoFar = [](size_t launches) {
    CHECK_EQ(PostFromAnotherProcess(L"ZNB_QVX_Client", 1), 0u);
    CHECK(PumpUntil([&] { return JournalLines() >= launches; }));
  };

  // 3 means nothing: it is only kept.
  const int before = application->CallCount("ActiveWindow");
  CHECK_EQ(PostFromAnotherProcess(L"ZNB_QVX_Client", 3), 0u);
  handledSoFar(1);
  CHECK_EQ(application->CallCount("ActiveWindow"), before);

  // 2: items changed. The toolbars are refreshed, which asks the host for its active window.
  CHECK_EQ(PostFromAnotherProcess(L"ZNB_QVX_Client", 2), 0u);
  handledSoFar(2);
  const int afterItemsChanged = application->CallCount("ActiveWindow");
  CHECK(afterItemsChanged > before);

  // 0: settings changed. Read again, and the toolbars refreshed as well.
  CHECK_EQ(PostFromAnotherProcess(L"ZNB_QVX_Client", 0), 0u);
  handledSoFar(3);
  CHECK(application->CallCount("ActiveWindow") > afterItemsChanged);

  // The manager's message reaches the same window and starts nothing.
  CHECK_EQ(PostFromAnotherProcess(L"ZNB_QVX_Manager", 0), 0u);
  handledSoFar(4);
  CHECK_EQ(FinishedLaunches(), (std::vector<std::string>{"28", "28", "28", "28"}));
  CHECK(FindClientWindow() != nullptr);
  CHECK(Watcher().Take().empty());
}

WINE_TEST(Listener, AClientMessageStartsTheSyncEvenWhileOneRuns) {
  QuietSettings();
  ClearJournal();
  AddinSession session;
  session.Start();
  CHECK_EQ(PostFromAnotherProcess(L"ZNB_QVX_Client", 1), 0u);
  CHECK_EQ(PostFromAnotherProcess(L"ZNB_QVX_Client", 1), 0u);
  CHECK(PumpUntil([] { return JournalLines() >= 2; }));
  CHECK_EQ(FinishedLaunches(), (std::vector<std::string>{"28", "28"}));
  DeleteTree(kSettingsKey);
}

}  // namespace qvx::winetest
