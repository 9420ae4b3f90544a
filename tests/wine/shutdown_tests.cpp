// Tear-down: by the host's shutdown events, by the object's last release
// (the host's fast shutdown calls no event), and what stays behind.
#include <windows.h>

#include <algorithm>

#include "harness/addin_session.h"
#include "harness/check.h"
#include "harness/companion_journal.h"
#include "harness/registry_keys.h"
#include "harness/ui_watcher.h"
#include "platform/win32/com_module.h"

namespace qvx::winetest {

TEST(Shutdown, BeginShutdownAndDisconnectionCloseTheListener) {
  WriteSettings({{L"DBChoice", L"1"}, {L"DBConnectionString", L""}});
  ClearJournal();
  AddinSession session;
  // The host's own objects: its Application and COMAddIn faces.
  const long hostObjects = win32::ModuleObjectCount();
  session.Start();
  ASSERT_TRUE(FindClientWindow() != nullptr);

  EXPECT_EQ(session.BeginShutdown(), S_OK);
  EXPECT_TRUE(FindClientWindow() == nullptr);
  EXPECT_EQ(session.Disconnect(), S_OK);
  EXPECT_EQ(session.Disconnect(), S_OK);                        // a second tear-down does no harm
  EXPECT_EQ(PostFromAnotherProcess(L"ZNB_QVX_Client", 1), 1u);  // no window to post to

  // Every event subscription has been given back.
  EXPECT_EQ(session.At("Explorers")->HandlerCount("NewExplorer"), size_t{0});
  EXPECT_EQ(session.At("Inspectors")->HandlerCount("NewInspector"), size_t{0});
  session.Release();
  EXPECT_EQ(Dll().CanUnloadNow(), S_OK);
  // The add-in holds none of the host's objects any more.
  EXPECT_EQ(win32::ModuleObjectCount(), hostObjects);
  EXPECT_TRUE(FinishedLaunches().empty());
  EXPECT_TRUE(Watcher().Take().empty());
}

// The add-in follows the host's events through connection points until the
// host quits and releases it without shutdown events.
TEST(Shutdown, TheHostQuitsAndReleasesTheAddinWithoutShutdownEvents) {
  WriteSettings({{L"DBChoice", L"1"}, {L"DBConnectionString", L""}});
  AddinSession session;
  session.Start();
  ASSERT_TRUE(FindClientWindow() != nullptr);
  // The mail library is no registered class here: the add-in asks the host.
  const auto& asked = session.createRequests();
  EXPECT_TRUE(std::find(asked.begin(), asked.end(), "ZNBLib.ZNBMAPIUtils") != asked.end());
  auto explorers = session.At("Explorers");
  EXPECT_EQ(explorers->HandlerCount("NewExplorer"), size_t{1});
  EXPECT_EQ(session.At("Inspectors")->HandlerCount("NewInspector"), size_t{1});
  const int before = explorers->CallCount("Count");
  session.world().OpenExplorer(session.world().Tasks());
  EXPECT_TRUE(explorers->CallCount("Count") > before);  // the NewExplorer handler counts them
  session.world().Quit();
  PumpOnce();
  session.Release();
  EXPECT_TRUE(FindClientWindow() == nullptr);
  EXPECT_EQ(explorers->HandlerCount("NewExplorer"), size_t{0});
  EXPECT_EQ(Dll().CanUnloadNow(), S_OK);
  EXPECT_TRUE(Watcher().Take().empty());
}

}  // namespace qvx::winetest
