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

// Ids outside the table, near misses among them, say so and start nothing;
// the table's own, from the File view, are in ribbon_backstage.qvx.
TEST(RibbonExecuteAction, AnIdOutsideTheTableSaysSo) {
  World world;
  ConnectAddin(world);
  for (const char* id : {"cmdReportMail", "cmdcheckupdates", "cmdContextReportCalTable"}) {
    CallbackAnswer(world, "SubExecuteAction", MakeControl(id));
  }
  ASSERT_EQ(world.ui().MessageBoxes().size(), 3u);
  EXPECT_EQ(world.ui().MessageBoxes()[0].text, "not implemented - cmdReportMail");
  EXPECT_EQ(world.ui().MessageBoxes()[2].text, "not implemented - cmdContextReportCalTable");
  EXPECT_TRUE(world.system().Launches().empty());
  EXPECT_TRUE(ErrorReports(world).empty());
}

// The provisioning of a prepared view is proven by views_menu.qvx. A view
// that is not there is reported, and its name not kept.
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

  CallbackAnswer(world, "ExecuteView", MakeControl("cmdView1", Object(), "Gone"));
  EXPECT_EQ(world.addin().state().ribbon.explorer.LAST_VIEW_NAME, "My week");
  ASSERT_EQ(ErrorReports(world).size(), 1u);
  EXPECT_NE(ErrorReports(world)[0].find("Addin.ExecuteView"), std::string::npos);
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
