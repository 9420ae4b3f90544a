// SubExecuteAction: the buttons, context menu entries and backstage tasks,
// by the id of the control pressed.
#include <gtest/gtest.h>

#include "unit/ribbon/ribbon_test_util.h"

namespace qvx::testing {
namespace {

using scenario::World;

// Each companion section, from every id that asks for it, and nothing else.
TEST(RibbonExecuteAction, CompanionSectionsByControlId) {
  struct Row {
    const char* id;
    const char* argument;
  };
  for (const Row& row :
       {Row{"cmdSyncProjectSettings", "17"}, Row{"cmdSyncProjectSettingsTaskDaily", "17"},
        Row{"cmdMyProjectsTasks", "6"}, Row{"cmdMyLocalSettings", "15"},
        Row{"cmdProjectDataSource", "14"}, Row{"cmdSummaryReports", "21"},
        Row{"cmdCheckUpdates", "26"}}) {
    SCOPED_TRACE(row.id);
    World world;
    world.registry().SetString(scenario::kSettingsKey, "DBChoice", "1");
    world.registry().SetString(scenario::kSettingsKey, "DBConnectionString", "DSN=Timesheets");
    ConnectAddin(world);
    CallbackAnswer(world, "SubExecuteAction", MakeControl(row.id));
    world.WaitForPrograms();
    ASSERT_EQ(world.system().Launches().size(), 1u);
    EXPECT_TRUE(world.system().Launches()[0].path.ends_with("QuorvixClient.exe"));
    EXPECT_EQ(world.system().Launches()[0].argument, row.argument);
    EXPECT_TRUE(world.ui().MessageBoxes().empty());
  }
}

TEST(RibbonExecuteAction, WebPagesHelpAboutAndUnknownIds) {
  World world;
  ConnectAddin(world);
  CallbackAnswer(world, "SubExecuteAction", MakeControl("cmdVideoTutorials"));
  CallbackAnswer(world, "SubExecuteAction", MakeControl("cmdVisitHomepage"));
  ASSERT_EQ(world.system().Launches().size(), 2u);
  EXPECT_TRUE(world.system().Launches()[0].path.ends_with("/Quorvix/TutorialClips.asp"));
  EXPECT_TRUE(world.system().Launches()[1].path.ends_with("/Quorvix/"));
  // No help file beside the add-in: nothing happens.
  CallbackAnswer(world, "SubExecuteAction", MakeControl("cmdHelpTopics"));
  EXPECT_EQ(world.system().Launches().size(), 2u);
  EXPECT_TRUE(world.system().ShellOpens().empty());
  // Ids outside the table, near misses among them, say so.
  for (const char* id : {"cmdReportMail", "cmdcheckupdates", "cmdContextReportCalTable"}) {
    CallbackAnswer(world, "SubExecuteAction", MakeControl(id));
  }
  ASSERT_EQ(world.ui().MessageBoxes().size(), 3u);
  EXPECT_EQ(world.ui().MessageBoxes()[0].text, "not implemented - cmdReportMail");
  EXPECT_EQ(world.ui().MessageBoxes()[2].text, "not implemented - cmdContextReportCalTable");
  EXPECT_EQ(world.system().Launches().size(), 2u);
  // The about box, shown modally.
  CallbackAnswer(world, "SubExecuteAction", MakeControl("cmdAbout"));
  ASSERT_EQ(world.ui().Forms().size(), 1u);
  EXPECT_EQ(world.ui().Forms()[0].caption, "About");
  EXPECT_EQ(world.ui().MessageBoxes().size(), 3u);
  EXPECT_TRUE(ErrorReports(world).empty());
}

// A control that is no object is trapped under the callback's label.
TEST(RibbonExecuteAction, AFailureIsTrappedAndReported) {
  World world;
  ConnectAddin(world);
  CallbackAnswer(world, "SubExecuteAction", Variant("not a control"));
  const std::vector<std::string> reports = ErrorReports(world);
  ASSERT_EQ(reports.size(), 1u);
  EXPECT_NE(reports[0].find("SubExecuteAction"), std::string::npos);
  EXPECT_TRUE(world.system().Launches().empty());
}

}  // namespace
}  // namespace qvx::testing
