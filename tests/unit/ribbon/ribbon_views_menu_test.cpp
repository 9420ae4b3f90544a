// The one action behind every entry of the views menus: the view it names is
// shown, its name kept, and the menus of the tasks and the calendar, in this
// order, asked again; a failure reaches the central reporter only.
#include "ribbon/views_menu.h"

#include <gtest/gtest.h>

#include "sim/folder.h"
#include "sim/views.h"
#include "unit/ribbon/ribbon_test_util.h"

namespace qvx::testing {
namespace {

using scenario::World;

TEST(RibbonViewsMenu, AnEntryShowsItsViewAndHasTwoMenusAskedAgain) {
  struct Case {
    const char* id;
    const char* tag;
    size_t views;  // the calendar's views afterwards
  };
  for (const Case& c : {Case{"cmdDefinedView6", "Due Date", 2}, Case{"cmdView1", "Calendar", 1}}) {
    SCOPED_TRACE(c.id);
    World world;
    StartAddin(world);
    auto calendar = world.host().Calendar();
    world.host().OpenExplorer(calendar);
    std::vector<std::string> invalidated;
    auto ribbon = std::make_shared<sim::FakeObject>("IRibbonUI");
    ribbon->Method("InvalidateControl", 1, 1, [&](sim::Args& a) {
      invalidated.push_back(sim::TextArg(a, 0));
      return Variant();
    });
    CallbackAnswer(world, "OnLoad", ribbon->AsVariant());

    CallbackAnswer(world, "ExecuteView", MakeControl(c.id, Object(), c.tag));

    EXPECT_EQ(calendar->views().current()->name(), c.tag);
    EXPECT_EQ(calendar->views().list().size(), c.views);
    EXPECT_EQ(world.addin().state().ribbon.explorer.LAST_VIEW_NAME, c.tag);
    EXPECT_EQ(invalidated, (std::vector<std::string>{"dnViewsTask", "dnViewsCal"}));
    EXPECT_TRUE(ErrorReports(world).empty());
  }
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
