// The project bar through its interface: what it shows of an item and copies
// for the ribbon, the inspector pool by name, and the flag left set when a
// project change fails.
#include "commandbars/standard_toolbar.h"

#include <gtest/gtest.h>

#include "sim/command_bars.h"
#include "sim/inspector.h"
#include "unit/reporting/tagging_fixture.h"

namespace qvx::testing {
namespace {

class StandardToolbarTest : public TaggingTest {
 protected:
  void Start() {
    Set("showProjectTaskToolbar", "-1");
    host().SetVersion("11.0.0.0");
    Connect();
  }
  std::shared_ptr<cStandardTB> ExplorerBar() {
    auto bar = std::make_shared<cStandardTB>(s());
    bar->oueCurrExplorer.Set(explorer->AsObject());
    bar->subAddButtons();
    return bar;
  }
  std::shared_ptr<sim::SimBarControl> Control(sim::SimWindow& window, std::string_view caption) {
    auto bar = window.commandBars().Find("Quorvix");
    if (!bar) return nullptr;
    return bar->controls().Named(caption);
  }
};

struct ReportedCase {
  const char* reportedId;
  const char* allowUpdate;
  const char* allowWithdrawal;
  const char* dontAllowChanges;
  const char* reportCaption;
  bool reportVisible;
  const char* withdrawCaption;
  bool withdrawVisible;
  bool combosEnabled;
};

class ShowFieldsTest : public StandardToolbarTest,
                       public ::testing::WithParamInterface<ReportedCase> {};

TEST_P(ShowFieldsTest, ButtonsAndCombosFollowTheReportStateAndTheRights) {
  const ReportedCase& c = GetParam();
  Set("AllowUpdateToReportedData", c.allowUpdate);
  Set("AllowWithdrawalOfReportedData", c.allowWithdrawal);
  Set("DontAllowChangesToReportedItem", c.dontAllowChanges);
  Start();
  auto item = Appointment("Planning");
  item->UserProperties().Set("ProjectValue", 1, Variant("Alpha"));
  if (*c.reportedId) item->UserProperties().Set("ReportedID", 1, Variant(c.reportedId));
  auto bar = ExplorerBar();
  bar->ShowFields(item->AsObject());

  const ExplorerRibbonValues& x = s().ribbon.explorer;
  EXPECT_EQ(x.REPORT_BUTTON_CAPTION, c.reportCaption);
  EXPECT_EQ(x.REPORT_BUTTON_VISIBLE, c.reportVisible);
  EXPECT_EQ(x.WITHDRAW_BUTTON_CAPTION, c.withdrawCaption);
  EXPECT_EQ(x.WITHDRAW_BUTTON_VISIBLE, c.withdrawVisible);
  EXPECT_EQ(x.PROJECT_ENABLED, c.combosEnabled);
  EXPECT_EQ(x.ACTIVITY_ENABLED, c.combosEnabled);
  EXPECT_EQ(x.SELECTED_PROJECT_VALUE, "Alpha");
  // The bar itself shows what the copies say.
  auto report = Control(*explorer, c.reportCaption);
  ASSERT_NE(report, nullptr);
  EXPECT_EQ(report->visible(), c.reportVisible);
  auto withdraw = Control(*explorer, c.withdrawCaption);
  ASSERT_NE(withdraw, nullptr);
  EXPECT_EQ(withdraw->visible(), c.withdrawVisible);
  EXPECT_EQ(Control(*explorer, "Project")->enabled(), c.combosEnabled);
}

INSTANTIATE_TEST_SUITE_P(
    ByReportState, ShowFieldsTest,
    ::testing::Values(
        ReportedCase{"", "0", "0", "-1", "Publish", true, "Withdraw Report", false, true},
        ReportedCase{"17", "-1", "-1", "0", "Update #17", true, "Withdraw #17", true, true},
        ReportedCase{"17", "0", "-1", "-1", "Update #17", false, "Withdraw #17", true, false},
        ReportedCase{"17", "-1", "0", "-1", "Update #17", true, "Withdraw Report", false, false},
        ReportedCase{"17", "0", "0", "0", "Update #17", false, "Withdraw Report", false, true}));

TEST_F(StandardToolbarTest, SeveralItemsCopyTheReportButtonsEnabledNotItsVisible) {
  Start();
  auto item = Appointment("Planning");
  item->UserProperties().Set("ReportedID", 1, Variant("5"));
  auto bar = ExplorerBar();
  bar->ShowFields(item->AsObject());  // reported, no right to update: hidden
  bar->DisableWithdrawReportButton();
  EXPECT_TRUE(s().ribbon.explorer.REPORT_BUTTON_VISIBLE);
  EXPECT_EQ(s().ribbon.explorer.REPORT_BUTTON_CAPTION, "Publish");
  EXPECT_FALSE(Control(*explorer, "Publish")->visible());
}

TEST_F(StandardToolbarTest, AnInspectorsBarWritesItsOwnPoolAndAnswersByName) {
  Start();
  auto item = Appointment("Planning");
  item->UserProperties().Set("ProjectValue", 1, Variant("Beta"));
  auto inspector = host().OpenInspector(item);
  auto bar = std::make_shared<cStandardTB>(s());
  bar->oueCurrInspector.Set(inspector->AsObject());
  bar->subAddButtons();
  bar->ShowFields(item->AsObject());

  EXPECT_EQ(bar->GetRibbonValueFromPool("SELECTED_INSPECTOR_PROJECT_VALUE").ToText(), "Beta");
  EXPECT_EQ(bar->GetRibbonValueFromPool("REPORT_BUTTON_INSPECTOR_CAPTION").ToText(), "Publish");
  bar->SetVariableValue("SELECTED_INSPECTOR_ACTIVITY_VALUE", Variant("Build"));
  EXPECT_EQ(bar->GetRibbonValueFromPool("SELECTED_INSPECTOR_ACTIVITY_VALUE").ToText(), "Build");
  // The explorers' values are not the inspector's.
  EXPECT_EQ(s().ribbon.explorer.SELECTED_PROJECT_VALUE, "");
  EXPECT_EQ(s().ribbon.explorer.REPORT_BUTTON_CAPTION, "");
}

TEST_F(StandardToolbarTest, AFailedProjectChangeLeavesTaggingInProgress) {
  Start();
  auto item = Appointment("Planning");
  Select({item});
  auto bar = ExplorerBar();
  bar->EntryID = item->EntryId();
  auto project = std::dynamic_pointer_cast<sim::SimBarComboBox>(Control(*explorer, "Project"));
  ASSERT_NE(project, nullptr);
  project->FailMember("Text", 440, "The control has gone");
  project->UserType("Alpha");

  EXPECT_TRUE(s().tagging.blnTaggingInProgress);
  EXPECT_TRUE(Reported("ProjectToolbar.Project.Change"));
  EXPECT_EQ(Prop(*item, "ProjectValue"), "(none)");
  // ShowFields does nothing meanwhile.
  item->UserProperties().Set("ProjectValue", 1, Variant("Beta"));
  bar->ShowFields(item->AsObject());
  EXPECT_EQ(s().ribbon.explorer.SELECTED_PROJECT_VALUE, "");
}

}  // namespace
}  // namespace qvx::testing
