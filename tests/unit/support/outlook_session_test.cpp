// The host session the add-in makes sure of when it has none: held, attached,
// or refused with the user told after every versioned name was tried. An
// object made by the platform or else the host: file_module_test. The
// version read once and by its major is proven by the scenarios on hosts 11
// and 16 and the host call counts; the default folder shown when it cannot
// be reached, by startup_default_folder_refused.qvx.
#include "support/outlook_session.h"

#include "sim/errors.h"
#include "sim/explorer.h"
#include "support_fixture.h"

namespace qvx::testing {
namespace {

namespace msgbox = platform::msgbox;
const std::string kRequired = "Outlook 2003 or later required to use this application!";

using EnsureOutlookSessionTest = SupportTest;

// The session is asked once; the first explorer is activated only when there
// is no active one to be had.
TEST_F(EnsureOutlookSessionTest, AHeldHostShowsNoBoxAndActivatesTheFirstExplorerWhenNoneIsActive) {
  ConnectHost();
  EnsureOutlookSession(s, host::olFolderInbox);
  EXPECT_EQ(host.Explorers()[0]->CallCount("Activate"), 0);
  host.FailAt("ActiveExplorer", sim::hresult::kFail, "The operation failed.");
  EnsureOutlookSession(s, host::olFolderInbox);
  ASSERT_EQ(host.Explorers().size(), 1u);  // none added
  EXPECT_EQ(host.Explorers()[0]->CallCount("Activate"), 1);
  EXPECT_EQ(host.app().CallCount("GetNamespace"), 1);
  EXPECT_TRUE(ui.MessageBoxes().empty());
  EXPECT_TRUE(objects.GetRequests().empty());
}

TEST_F(EnsureOutlookSessionTest, NoHostShowsBothBoxesAndTearsDown) {
  EnsureOutlookSession(s, host::olFolderInbox);
  EXPECT_EQ(objects.CreateRequests(),
            (std::vector<std::string>{"Outlook.Application", "Outlook.Application.14",
                                      "Outlook.Application.12", "Outlook.Application.11",
                                      "Outlook.Application.10", "Outlook.Application.9",
                                      "Outlook.Application"}));
  ASSERT_EQ(ui.MessageBoxes().size(), 2u);
  EXPECT_EQ(ui.MessageBoxes()[0].text, "Error trying to start Outlook!");
  EXPECT_EQ(ui.MessageBoxes()[0].style, msgbox::kOkOnly);
  EXPECT_EQ(ui.MessageBoxes()[1].text.substr(0, kRequired.size() + 2), kRequired + "\r\n");
  EXPECT_EQ(ui.MessageBoxes()[1].style, msgbox::kCritical);
  EXPECT_EQ(ui.MessageBoxes()[1].title, "Quorvix Client Addin");
  EXPECT_TRUE(s.main.objOutlook.IsNothing());
  EXPECT_FALSE(s.err.pending());
}

// Attached to a running host: refused below version 10, taken from 10.
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

}  // namespace
}  // namespace qvx::testing
