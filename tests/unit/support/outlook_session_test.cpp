#include "support/outlook_session.h"

#include "support_fixture.h"

namespace qvx::testing {
namespace {

namespace msgbox = platform::msgbox;
const std::string kRequired = "Outlook 2003 or later required to use this application!";

using EnsureOutlookSessionTest = SupportTest;

TEST_F(EnsureOutlookSessionTest, HeldHostShowsNoBoxAndActivatesTheFirstExplorer) {
  ConnectHost();
  outlook.hasActiveExplorer = false;
  EnsureOutlookSession(s, host::olFolderInbox);
  EXPECT_TRUE(ui.MessageBoxes().empty());
  EXPECT_EQ(outlook.activations, 1);
  EXPECT_TRUE(outlook.explorersAddedFor.empty());
  EXPECT_FALSE(s.main.objNameSpace.IsNothing());
  EXPECT_TRUE(objects.GetRequests().empty());
}

TEST_F(EnsureOutlookSessionTest, AnActiveExplorerIsLeftAloneAndTheSessionAskedOnce) {
  ConnectHost();
  EnsureOutlookSession(s, host::olFolderInbox);
  EnsureOutlookSession(s, host::olFolderInbox);
  EXPECT_EQ(outlook.activations, 0);
  EXPECT_EQ(outlook.namespaceCalls, 1);
}

TEST_F(EnsureOutlookSessionTest, AttachesToARunningHost) {
  HostRunning();
  EnsureOutlookSession(s, host::olFolderInbox);
  EXPECT_TRUE(s.main.objOutlook.Is(outlook.Application()));
  EXPECT_TRUE(objects.CreateRequests().empty());
  EXPECT_TRUE(ui.MessageBoxes().empty());
}

TEST_F(EnsureOutlookSessionTest, CreatesByTheVersionedProgIdsInOrder) {
  objects.RegisterCreator("Outlook.Application.12", [this] { return outlook.Application(); });
  EnsureOutlookSession(s, host::olFolderInbox);
  EXPECT_TRUE(s.main.objOutlook.Is(outlook.Application()));
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
  outlook.version = "9.0.0.2711";
  EnsureOutlookSession(s, host::olFolderInbox);
  ASSERT_EQ(ui.MessageBoxes().size(), 1u);
  EXPECT_EQ(ui.MessageBoxes()[0].text, kRequired + "\r\n9");
  EXPECT_EQ(ui.MessageBoxes()[0].style, msgbox::kCritical);
  EXPECT_TRUE(s.main.objOutlook.IsNothing());
  s.support.cachedVersion = 0;
  outlook.version = "10.0";
  EnsureOutlookSession(s, host::olFolderInbox);
  EXPECT_EQ(ui.MessageBoxes().size(), 1u);
  EXPECT_FALSE(s.main.objOutlook.IsNothing());
}

TEST_F(SupportTest, GetVersionTakesTheMajorAndCachesIt) {
  ConnectHost();
  outlook.version = "15";  // without a dot: the whole text
  EXPECT_EQ(GetVersion(s), 15);
  outlook.version = "14.0.1";
  EXPECT_EQ(GetVersion(s), 15);
  s.support.cachedVersion = 0;
  EXPECT_EQ(GetVersion(s), 14);
}

TEST_F(SupportTest, ShowDefaultFolderOpensAnExplorerOnlyWhenThereIsNoneAndTellsAFailure) {
  ConnectHost();
  ShowDefaultFolder(s, host::olFolderCalendar);
  EXPECT_TRUE(outlook.explorersAddedFor.empty());
  outlook.explorerCount = 0;
  ShowDefaultFolder(s, host::olFolderCalendar);
  EXPECT_EQ(outlook.explorersAddedFor, std::vector<int32_t>{host::olFolderCalendar});
  EXPECT_EQ(outlook.explorerAddModes, std::vector<int32_t>{3});
  EXPECT_EQ(outlook.displays, 1);
  EXPECT_FALSE(s.main.objNameSpace.IsNothing());
  EXPECT_TRUE(ui.MessageBoxes().empty());

  outlook.explorerCount = 0;
  outlook.failGetDefaultFolder = true;
  ShowDefaultFolder(s, host::olFolderCalendar);
  ASSERT_EQ(ui.MessageBoxes().size(), 1u);
  // Failures are ignored statement by statement, so the box tells the last
  // one: the display of the explorer that could not be added.
  EXPECT_EQ(ui.MessageBoxes()[0].text,
            "Can't access Outlook API!\r\nNot adequate permission over the folder/items!\r\n"
            "91\r\nObject variable or With block variable not set\r\n60");
  EXPECT_EQ(ui.MessageBoxes()[0].style, msgbox::kCritical);
}

TEST_F(SupportTest, CreateObjectSafelyTriesBothWays) {
  const Object fromHost = platform::MakeDictionary();
  outlook.hostCreates = fromHost;
  // No host: only the platform.
  EXPECT_EQ(CreateObjectSafely(s, "Scripting.Dictionary", false).TypeName(), "Dictionary");
  EXPECT_TRUE(CreateObjectSafely(s, "Scripting.Dictionary", true).IsNothing());
  ConnectHost();
  EXPECT_TRUE(CreateObjectSafely(s, "Scripting.Dictionary", true).Is(fromHost));
  EXPECT_FALSE(CreateObjectSafely(s, "Scripting.Dictionary", false).Is(fromHost));
  EXPECT_TRUE(CreateObjectSafely(s, "No.Such", false).Is(fromHost));
  outlook.hostCreates.Release();
  EXPECT_EQ(CreateObjectSafely(s, "Wscript.Shell", true).TypeName(), "IWshShell3");
  EXPECT_TRUE(CreateObjectSafely(s, "No.Such", true).IsNothing());
  EXPECT_FALSE(s.err.pending());
}

}  // namespace
}  // namespace qvx::testing
