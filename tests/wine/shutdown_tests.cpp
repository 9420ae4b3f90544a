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
namespace {

void QuietSettings() {
  WriteSettings({{L"DBChoice", L"1"}, {L"DBConnectionString", L""}});
}

}  // namespace

WINE_TEST(Shutdown, BeginShutdownAndDisconnectionCloseTheListener) {
  QuietSettings();
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
  CHECK_EQ(session.host().At("Explorers")->HandlerCount("NewExplorer"), size_t{0});
  CHECK_EQ(session.host().At("Inspectors")->HandlerCount("NewInspector"), size_t{0});
  session.Release();
  CHECK_EQ(AddinDll::Get().CanUnloadNow(), S_OK);
  // The add-in holds none of the host's objects any more.
  CHECK_EQ(win32::ModuleObjectCount(), hostObjects);
  CHECK(FinishedLaunches().empty());
  CHECK(Watcher().Take().empty());
}

WINE_TEST(Shutdown, TheLastReleaseTearsDownWithoutShutdownEvents) {
  QuietSettings();
  ClearJournal();
  AddinSession session;
  session.Start();
  REQUIRE(FindClientWindow() != nullptr);
  session.Release();
  CHECK(FindClientWindow() == nullptr);
  CHECK_EQ(session.host().At("Explorers")->HandlerCount("NewExplorer"), size_t{0});
  CHECK_EQ(AddinDll::Get().CanUnloadNow(), S_OK);
}

WINE_TEST(Shutdown, TheHostQuitting) {
  QuietSettings();
  ClearJournal();
  AddinSession session;
  session.Start();
  const size_t quitSinks = session.host().At("")->HandlerCount("Quit");
  session.world().Quit();
  PumpOnce();
  if (quitSinks > 0) {
    // The add-in listens to the host's Quit: it tears itself down.
    CHECK(FindClientWindow() == nullptr);
  } else {
    Note("the add-in does not listen to Application.Quit yet");
  }
  // Outlook calls no shutdown event after Quit on a fast shutdown.
  session.Release();
  CHECK(FindClientWindow() == nullptr);
  CHECK(Watcher().Take().empty());
  DeleteTree(kSettingsKey);
}

}  // namespace qvx::winetest
