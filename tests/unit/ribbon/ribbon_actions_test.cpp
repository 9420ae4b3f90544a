// The actions behind the ribbon's controls. SubExecuteAction: the buttons,
// context menu entries and backstage tasks, by the id of the control pressed.
// ExecuteView, behind every entry of the views menus: the view it names is
// shown, its name kept, and the menus of the tasks and the calendar, in this
// order, asked again. A failure of either reaches the central reporter only.
#include <gtest/gtest.h>

#include "core/host_constants.h"
#include "ribbon/views_menu.h"
#include "sim/folder.h"
#include "sim/views.h"
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

// The provisioning of a prepared view is proven by views_menu.qvx.
TEST(RibbonViewsMenu, AnEntryShowsItsViewAndHasTwoMenusAskedAgain) {
  World world;
  StartAddin(world);
  auto calendar = world.host().Calendar();
  world.host().OpenExplorer(calendar);
  calendar->views().Add("My week", host::olCalendarView, 0);
  std::vector<std::string> invalidated;
  auto ribbon = std::make_shared<sim::FakeObject>("IRibbonUI");
  ribbon->Method("InvalidateControl", 1, 1, [&](sim::Args& a) {
    invalidated.push_back(sim::TextArg(a, 0));
    return Variant();
  });
  CallbackAnswer(world, "OnLoad", ribbon->AsVariant());

  CallbackAnswer(world, "ExecuteView", MakeControl("cmdView2", Object(), "My week"));

  EXPECT_EQ(calendar->views().current()->name(), "My week");
  EXPECT_EQ(world.addin().state().ribbon.explorer.LAST_VIEW_NAME, "My week");
  EXPECT_EQ(invalidated, (std::vector<std::string>{"dnViewsTask", "dnViewsCal"}));
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

TEST(RibbonViewsMenu, AViewThatIsNotThereIsReportedAndNothingKept) {
  World world;
  StartAddin(world);
  world.host().OpenExplorer(world.host().Calendar());
  CallbackAnswer(world, "ExecuteView", MakeControl("cmdView1", Object(), "Gone"));
  EXPECT_EQ(world.addin().state().ribbon.explorer.LAST_VIEW_NAME, "");
  ASSERT_EQ(ErrorReports(world).size(), 1u);
  EXPECT_NE(ErrorReports(world)[0].find("Addin.ExecuteView"), std::string::npos);
}

}  // namespace
}  // namespace qvx::testing
