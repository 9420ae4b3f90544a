// Explorers and inspectors of the simulated host, seen through Object.
#include <gtest/gtest.h>

#include "sim/explorer.h"
#include "sim/explorers.h"
#include "sim/folder.h"
#include "sim/inspector.h"
#include "sim/item_classes.h"
#include "sim/outlook.h"
#include "unit/sim/sim_test_util.h"

namespace qvx::sim {
namespace {

using testing::EventLog;
using testing::FailureOf;

class SimWindows : public ::testing::Test {
 protected:
  Outlook world;
  Object app = world.Application();
  Object explorers = app.Get("Explorers").ToObject();
};

TEST_F(SimWindows, StartsWithOneActiveExplorerOnTheInbox) {
  EXPECT_EQ(explorers.Get("Count").ToLong(), 1);
  const Object active = app.Get("ActiveExplorer").ToObject();
  EXPECT_EQ(active.TypeName(), "Explorer");
  EXPECT_TRUE(active.Is(explorers.Call("Item", {Variant(int32_t{1})}).ToObject()));
  EXPECT_EQ(active.Get("CurrentFolder").ToObject().Get("Name").ToText(), "Inbox");
  EXPECT_TRUE(app.Get("ActiveWindow").ToObject().Is(active));
  EXPECT_TRUE(app.Get("ActiveInspector").ToObject().IsNothing());
}

TEST_F(SimWindows, StartingWithoutExplorerLeavesNothingActive) {
  world.StartsWithoutExplorer();
  EXPECT_EQ(explorers.Get("Count").ToLong(), 0);
  EXPECT_TRUE(app.Get("ActiveExplorer").ToObject().IsNothing());
  EXPECT_TRUE(app.Get("ActiveWindow").ToObject().IsNothing());
}

TEST_F(SimWindows, AddCountsAtOnceRaisesNewExplorerAndShowsNothingUntilDisplay) {
  Object added;
  long countWhenRaised = -1;
  Subscription sub = explorers.Subscribe("NewExplorer", [&](EventArgs& a) {
    added = a.at(0).ToObject();
    countWhenRaised = explorers.Get("Count").ToLong();
  });
  const Object calendar = app.Call("GetNamespace", {Variant("MAPI")})
                              .ToObject()
                              .Call("GetDefaultFolder", {Variant(9)})
                              .ToObject();
  const Object made = explorers.Call("Add", {Variant(calendar), Variant(int32_t{3})}).ToObject();
  EXPECT_TRUE(made.Is(added));
  EXPECT_EQ(countWhenRaised, 2);
  EXPECT_FALSE(app.Get("ActiveExplorer").ToObject().Is(made));
  made.Call("Display");
  EXPECT_TRUE(app.Get("ActiveExplorer").ToObject().Is(made));
  EXPECT_EQ(made.Get("Caption").ToText(), "Calendar - Microsoft Outlook");
}

TEST_F(SimWindows, ActivationDeactivatesThePreviousWindowFirst) {
  auto first = world.ActiveExplorer();
  auto second = world.OpenExplorer(world.Calendar());
  EventLog log;
  log.Listen(first->AsObject(), "Activate", "first");
  log.Listen(first->AsObject(), "Deactivate", "first");
  log.Listen(second->AsObject(), "Activate", "second");
  log.Listen(second->AsObject(), "Deactivate", "second");
  first->AsObject().Call("Activate");
  first->AsObject().Call("Activate");  // already active: no events
  EXPECT_EQ(log.heard, (std::vector<std::string>{"second.Deactivate", "first.Activate"}));
}

TEST_F(SimWindows, CloseRaisesCloseWhileCountedThenRemovesAndActivatesTheNext) {
  auto first = world.ActiveExplorer();
  auto second = world.OpenExplorer(world.Calendar());
  long countAtClose = -1;
  Subscription onClose = second->AsObject().Subscribe(
      "Close", [&](EventArgs&) { countAtClose = explorers.Get("Count").ToLong(); });
  EventLog log;
  log.Listen(first->AsObject(), "Activate", "first");
  log.Listen(app, "Quit");
  second->AsObject().Call("Close");
  EXPECT_EQ(countAtClose, 2);
  EXPECT_EQ(explorers.Get("Count").ToLong(), 1);
  EXPECT_EQ(log.heard, (std::vector<std::string>{"first.Activate"}));
  EXPECT_TRUE(app.Get("ActiveExplorer").ToObject().Is(first->AsObject()));
  const Failure f = FailureOf([&] { second->AsObject().Get("CurrentFolder"); });
  EXPECT_EQ(f.number(), hresult::kFail);
  EXPECT_NE(f.description().find("Explorer has been closed"), std::string::npos);
}

TEST_F(SimWindows, ClosingTheLastWindowQuitsOnce) {
  EventLog log;
  log.Listen(app, "Quit");
  world.ActiveExplorer()->AsObject().Call("Close");
  EXPECT_EQ(explorers.Get("Count").ToLong(), 0);
  app.Call("Quit");
  EXPECT_EQ(log.heard, (std::vector<std::string>{"Quit"}));
}

TEST_F(SimWindows, ClosingTheLastWindowNeedNotQuit) {
  world.SetQuitOnLastWindowClose(false);
  EventLog log;
  log.Listen(app, "Quit");
  world.Close(*world.ActiveExplorer());
  EXPECT_TRUE(log.heard.empty());
}

TEST_F(SimWindows, InspectorsOpenOnItemsAndFollowTheActiveWindow) {
  auto task = world.AddTask("Write report");
  const Object inspectors = app.Get("Inspectors").ToObject();
  Object announced;
  Subscription sub =
      inspectors.Subscribe("NewInspector", [&](EventArgs& a) { announced = a.at(0).ToObject(); });
  auto inspector = world.OpenInspector(task);
  EXPECT_TRUE(announced.Is(inspector->AsObject()));
  EXPECT_EQ(inspectors.Get("Count").ToLong(), 1);
  EXPECT_EQ(app.Get("ActiveWindow").ToObject().TypeName(), "Inspector");
  EXPECT_TRUE(
      app.Get("ActiveInspector").ToObject().Get("CurrentItem").ToObject().Is(task->AsObject()));
  // ActiveExplorer stays the explorer behind the inspector.
  EXPECT_EQ(app.Get("ActiveExplorer").ToObject().TypeName(), "Explorer");
  std::vector<std::string> items;
  for (const Variant& v : inspectors.Enumerate()) {
    items.push_back(v.ToObject().Get("CurrentItem").ToObject().Get("Subject").ToText());
  }
  EXPECT_EQ(items, (std::vector<std::string>{"Write report"}));
  inspector->AsObject().Call("Close", {Variant(int32_t{1})});
  EXPECT_EQ(inspectors.Get("Count").ToLong(), 0);
  EXPECT_EQ(app.Get("ActiveWindow").ToObject().TypeName(), "Explorer");
}

TEST_F(SimWindows, DisplayOfAnItemReusesItsInspector) {
  auto task = world.AddTask("Call back");
  int opened = 0;
  Subscription sub =
      app.Get("Inspectors").ToObject().Subscribe("NewInspector", [&](EventArgs&) { ++opened; });
  task->AsObject().Call("Display");
  world.Activate(*world.ActiveExplorer());
  task->AsObject().Call("Display");
  EXPECT_EQ(opened, 1);
  EXPECT_EQ(app.Get("ActiveWindow").ToObject().TypeName(), "Inspector");
  world.OpenInspector(task);  // the user may still open a second one
  EXPECT_EQ(opened, 2);
}

TEST_F(SimWindows, CommandBarsComeFromTheHookOncePerWindow) {
  const Object explorer = app.Get("ActiveExplorer").ToObject();
  EXPECT_TRUE(explorer.Get("CommandBars").ToObject().IsNothing());
  int made = 0;
  world.SetCommandBars([&](SimWindow&) {
    ++made;
    return std::make_shared<FakeObject>("CommandBars")->AsObject();
  });
  const Object bars = explorer.Get("CommandBars").ToObject();
  EXPECT_EQ(bars.TypeName(), "CommandBars");
  EXPECT_TRUE(explorer.Get("CommandBars").ToObject().Is(bars));
  EXPECT_EQ(made, 1);
}

}  // namespace
}  // namespace qvx::sim
