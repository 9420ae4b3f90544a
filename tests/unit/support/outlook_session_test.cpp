#include "support/outlook_session.h"

#include "sim/errors.h"
#include "sim/explorer.h"
#include "sim/folder.h"
#include "support_fixture.h"

namespace qvx::testing {
namespace {

namespace msgbox = platform::msgbox;
const std::string kRequired = "Outlook 2003 or later required to use this application!";

using EnsureOutlookSessionTest = SupportTest;

TEST_F(EnsureOutlookSessionTest, HeldHostShowsNoBoxAndActivatesTheFirstExplorer) {
  ConnectHost();
  host.FailAt("ActiveExplorer", sim::hresult::kFail, "The operation failed.");
  EnsureOutlookSession(s, host::olFolderInbox);
  EXPECT_TRUE(ui.MessageBoxes().empty());
  ASSERT_EQ(host.Explorers().size(), 1u);  // none added
  EXPECT_EQ(host.Explorers()[0]->CallCount("Activate"), 1);
  EXPECT_FALSE(s.main.objNameSpace.IsNothing());
  EXPECT_TRUE(objects.GetRequests().empty());
}

TEST_F(EnsureOutlookSessionTest, AnActiveExplorerIsLeftAloneAndTheSessionAskedOnce) {
  ConnectHost();
  EnsureOutlookSession(s, host::olFolderInbox);
  EnsureOutlookSession(s, host::olFolderInbox);
  EXPECT_EQ(host.Explorers()[0]->CallCount("Activate"), 0);
  EXPECT_EQ(host.app().CallCount("GetNamespace"), 1);
}

TEST_F(EnsureOutlookSessionTest, AttachesToARunningHost) {
  HostRunning();
  EnsureOutlookSession(s, host::olFolderInbox);
  EXPECT_TRUE(s.main.objOutlook.Is(host.Application()));
  EXPECT_TRUE(objects.CreateRequests().empty());
  EXPECT_TRUE(ui.MessageBoxes().empty());
}

TEST_F(EnsureOutlookSessionTest, CreatesByTheVersionedProgIdsInOrder) {
  objects.RegisterCreator("Outlook.Application.12", [this] { return host.Application(); });
  EnsureOutlookSession(s, host::olFolderInbox);
  EXPECT_TRUE(s.main.objOutlook.Is(host.Application()));
  EXPECT_EQ(objects.CreateRequests(),
            (std::vector<std::string>{"Outlook.Application", "Outlook.Application.14",
                                      "Outlook.Application.12"}));
  EXPECT_TRUE(ui.MessageBoxes().empty());
}

TEST_F(EnsureOutlookSessionTest, NoHostShowsBothBoxesAndTearsDown) {
  EnsureOutlookSession(s, host::olFolderInbox);
  EXPECT_EQ(objects.CreateRequests().size(), 7u);
  ASSERT_EQ(ui.MessageBoxes().size(), 2u);
  EXPECT_EQ(ui.MessageBoxes()[0].text, "Error trying to start Outlook!");
  EXPECT_EQ(ui.MessageBoxes()[0].style, msgbox::kOkOnly);
  EXPECT_EQ(ui.MessageBoxes()[1].text.substr(0, kRequired.size() + 2), kRequired + "\r\n");
  EXPECT_EQ(ui.MessageBoxes()[1].style, msgbox::kCritical);
  EXPECT_EQ(ui.MessageBoxes()[1].title, "Quorvix Client Addin");
  EXPECT_TRUE(s.main.objOutlook.IsNothing());
  EXPECT_FALSE(s.err.pending());
}

TEST_F(EnsureOutlookSessionTest, VersionBelowTenIsRefusedAndTenPasses) {
  HostRunning();
  host.SetVersion("9.0.0.2711");
  EnsureOutlookSession(s, host::olFolderInbox);
  ASSERT_EQ(ui.MessageBoxes().size(), 1u);
  EXPECT_EQ(ui.MessageBoxes()[0].text, kRequired + "\r\n9");
  EXPECT_EQ(ui.MessageBoxes()[0].style, msgbox::kCritical);
  EXPECT_TRUE(s.main.objOutlook.IsNothing());
  s.support.cachedVersion = 0;
  host.SetVersion("10.0");
  EnsureOutlookSession(s, host::olFolderInbox);
  EXPECT_EQ(ui.MessageBoxes().size(), 1u);
  EXPECT_FALSE(s.main.objOutlook.IsNothing());
}

TEST_F(SupportTest, GetVersionTakesTheMajorAndCachesIt) {
  ConnectHost();
  host.SetVersion("15");  // without a dot: the whole text
  EXPECT_EQ(GetVersion(s), 15);
  host.SetVersion("14.0.1");
  EXPECT_EQ(GetVersion(s), 15);
  s.support.cachedVersion = 0;
  EXPECT_EQ(GetVersion(s), 14);
}

// With no explorer the default folder is opened and shown: startup_no_explorer.qvx.
TEST_F(SupportTest, ShowDefaultFolderTellsTheLastFailureInABox) {
  host.StartsWithoutExplorer();
  host.FailAt("Session.GetDefaultFolder", sim::hresult::kFail, "No access.");
  ConnectHost();
  ShowDefaultFolder(s, host::olFolderCalendar);
  EXPECT_TRUE(host.Explorers().empty());
  ASSERT_EQ(ui.MessageBoxes().size(), 1u);
  // Failures are ignored statement by statement, so the box tells the last
  // one: the display of the explorer that could not be added, at its line.
  EXPECT_EQ(ui.MessageBoxes()[0].text,
            "Can't access Outlook API!\r\nNot adequate permission over the folder/items!\r\n"
            "91\r\nObject variable or With block variable not set\r\n60");
  EXPECT_EQ(ui.MessageBoxes()[0].style, msgbox::kCritical);
}

TEST_F(SupportTest, CreateObjectSafelyTriesBothWays) {
  Object fromHost = platform::MakeDictionary();
  host.SetCreateObject([&fromHost](std::string_view) { return fromHost; });
  // No host: only the platform.
  EXPECT_EQ(CreateObjectSafely(s, "Scripting.Dictionary", false).TypeName(), "Dictionary");
  EXPECT_TRUE(CreateObjectSafely(s, "Scripting.Dictionary", true).IsNothing());
  ConnectHost();
  EXPECT_TRUE(CreateObjectSafely(s, "Scripting.Dictionary", true).Is(fromHost));
  EXPECT_FALSE(CreateObjectSafely(s, "Scripting.Dictionary", false).Is(fromHost));
  EXPECT_TRUE(CreateObjectSafely(s, "No.Such", false).Is(fromHost));
  fromHost.Release();
  EXPECT_EQ(CreateObjectSafely(s, "Wscript.Shell", true).TypeName(), "IWshShell3");
  EXPECT_TRUE(CreateObjectSafely(s, "No.Such", true).IsNothing());
  EXPECT_FALSE(s.err.pending());
}

}  // namespace
}  // namespace qvx::testing
