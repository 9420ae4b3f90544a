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

// The unreported item, and reported ones that may be withdrawn, are
// bars_selection.qvx's; here reported ones that may not be withdrawn.
TEST_F(StandardToolbarTest, AReportedItemShowsUpdateAsAllowedAndCombosAsChangesAre) {
  Start();
  auto bar = ExplorerBar();
  const struct { int16_t allowUpdate, dontAllowChanges; } rows[] = {{-1, -1}, {0, 0}};
  for (const auto& row : rows) {
    settings().AllowUpdateToReportedData = row.allowUpdate;
    settings().DontAllowChangesToReportedItem = row.dontAllowChanges;
    auto item = Appointment("Planning");
    item->UserProperties().Set("ProjectValue", 1, Variant("Alpha"));
    item->UserProperties().Set("ReportedID", 1, Variant("17"));
    bar->ShowFields(item->AsObject());
    const ExplorerRibbonValues& x = s().ribbon.explorer;
    EXPECT_EQ(x.REPORT_BUTTON_CAPTION, "Update #17");
    EXPECT_EQ(x.REPORT_BUTTON_VISIBLE, row.allowUpdate != 0);
    EXPECT_EQ(x.WITHDRAW_BUTTON_CAPTION, "Withdraw Report");
    EXPECT_FALSE(x.WITHDRAW_BUTTON_VISIBLE);
    EXPECT_EQ(x.PROJECT_ENABLED, row.dontAllowChanges == 0);
    EXPECT_EQ(x.ACTIVITY_ENABLED, row.dontAllowChanges == 0);
    EXPECT_EQ(x.SELECTED_PROJECT_VALUE, "Alpha");
    // The bar itself shows what the copies say.
    ASSERT_NE(Control(*explorer, "Update #17"), nullptr);
    ASSERT_NE(Control(*explorer, "Withdraw Report"), nullptr);
    EXPECT_EQ(Control(*explorer, "Update #17")->visible(), row.allowUpdate != 0);
    EXPECT_FALSE(Control(*explorer, "Withdraw Report")->visible());
    EXPECT_EQ(Control(*explorer, "Project")->enabled(), row.dontAllowChanges == 0);
  }
}

// Several items after a hidden report button: bars_selection.qvx.
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
  // The explorers' values are not the inspector's.
  EXPECT_EQ(s().ribbon.explorer.SELECTED_PROJECT_VALUE, "");
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
