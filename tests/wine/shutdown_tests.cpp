// Tear-down: by the host's shutdown events, by the object's last release
// (the host's fast shutdown calls no event), and what stays behind.
#include <windows.h>

#include "harness/addin_session.h"
#include "harness/check.h"
#include "harness/companion_journal.h"
#include "harness/registry_keys.h"
#include "harness/ui_watcher.h"
#include "platform/win32/com_module.h"

namespace qvx::winetest {

WINE_TEST(Shutdown, BeginShutdownAndDisconnectionCloseTheListener) {
  WriteSettings({{L"DBChoice", L"1"}, {L"DBConnectionString", L""}});
  ClearJournal();
  AddinSession session;
  // The host's own objects: its Application and COMAddIn faces.
  const long hostObjects = win32::ModuleObjectCount();
  session.Start();
  REQUIRE(FindClientWindow() != nullptr);

  CHECK_EQ(session.BeginShutdown(), S_OK);
  CHECK(FindClientWindow() == nullptr);
  CHECK_EQ(session.Disconnect(), S_OK);
  CHECK_EQ(session.Disconnect(), S_OK);                        // a second tear-down does no harm
  CHECK_EQ(PostFromAnotherProcess(L"ZNB_QVX_Client", 1), 1u);  // no window to post to

  // Every event subscription has been given back.
  CHECK_EQ(session.At("Explorers")->HandlerCount("NewExplorer"), size_t{0});
  CHECK_EQ(session.At("Inspectors")->HandlerCount("NewInspector"), size_t{0});
  session.Release();
  CHECK_EQ(Dll().CanUnloadNow(), S_OK);
  // The add-in holds none of the host's objects any more.
  CHECK_EQ(win32::ModuleObjectCount(), hostObjects);
  CHECK(FinishedLaunches().empty());
  CHECK(Watcher().Take().empty());
}

WINE_TEST(Shutdown, TheHostQuitsAndReleasesTheAddinWithoutShutdownEvents) {
  WriteSettings({{L"DBChoice", L"1"}, {L"DBConnectionString", L""}});
  AddinSession session;
  session.Start();
  REQUIRE(FindClientWindow() != nullptr);
  session.world().Quit();
  PumpOnce();
  session.Release();
  CHECK(FindClientWindow() == nullptr);
  CHECK_EQ(session.At("Explorers")->HandlerCount("NewExplorer"), size_t{0});
  CHECK_EQ(Dll().CanUnloadNow(), S_OK);
  CHECK(Watcher().Take().empty());
  DeleteTree(kSettingsKey);
}

}  // namespace qvx::winetest
