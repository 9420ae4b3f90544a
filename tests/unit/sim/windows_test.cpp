// Explorers, their selections and inspectors of the simulated host, seen through Object.
#include <gtest/gtest.h>

#include "core/dates.h"
#include "sim/explorer.h"
#include "sim/explorers.h"
#include "sim/folder.h"
#include "sim/inspector.h"
#include "sim/item_classes.h"
#include "sim/outlook.h"
#include "unit/sim/sim_test_util.h"

namespace qvx::sim {
namespace {

using testing::FailureOf;

class SimWindows : public ::testing::Test {
 protected:
  Outlook world;
  Object app = world.Application();
  Object explorers = app.Get("Explorers").ToObject();
};

TEST_F(SimWindows, SelectionIsASnapshotOfWhatTheTestSelected) {
  auto first = world.AddAppointment("First", DateSerial(2026, 2, 2), DateSerial(2026, 2, 3));
  auto second = world.AddAppointment("Second", DateSerial(2026, 2, 4), DateSerial(2026, 2, 5));
  auto explorer = world.OpenExplorer(world.Calendar());
  const Object e = explorer->AsObject();
  world.Select(*explorer, {first, second});
  const Object selection = e.Get("Selection").ToObject();
  EXPECT_EQ(selection.Get("Count").ToLong(), 2);
  EXPECT_TRUE(selection.Call("Item", {Variant(int32_t{2})}).ToObject().Is(second->AsObject()));
  EXPECT_EQ(FailureOf([&] { selection.Call("Item", {Variant(int32_t{3})}); }).number(),
            hresult::kIndexOutOfBounds);
  world.Select(*explorer, {});
  EXPECT_EQ(selection.Get("Count").ToLong(), 2);  // the snapshot keeps its items
  EXPECT_EQ(e.Get("Selection").ToObject().Get("Count").ToLong(), 0);
}

TEST_F(SimWindows, AddCountsAtOnceRaisesNewExplorerAndShowsNothingUntilDisplay) {
  Object added;
  long countWhenRaised = -1;
  Subscription sub = explorers.Subscribe("NewExplorer", [&](EventArgs& a) {
    added = a.at(0).ToObject();
    countWhenRaised = explorers.Get("Count").ToLong();
  });
  const Object made =
      explorers.Call("Add", {world.Calendar()->AsVariant(), Variant(int32_t{3})}).ToObject();
  EXPECT_TRUE(made.Is(added));
  EXPECT_EQ(countWhenRaised, 2);
  EXPECT_FALSE(app.Get("ActiveExplorer").ToObject().Is(made));
  made.Call("Display");
  EXPECT_TRUE(app.Get("ActiveExplorer").ToObject().Is(made));
}

TEST_F(SimWindows, CloseRaisesCloseOnceUncountedThenActivatesTheNext) {
  auto first = world.ActiveExplorer();
  auto second = world.OpenExplorer(world.Calendar());
  long countAtClose = -1;
  std::string folderAtClose;
  Subscription onClose = second->AsObject().Subscribe("Close", [&](EventArgs&) {
    countAtClose = explorers.Get("Count").ToLong();
    folderAtClose = second->AsObject().Get("CurrentFolder").ToObject().Get("Name").ToText();
  });
  second->AsObject().Call("Close");
  // The closing window has left the collection, and can still be used.
  EXPECT_EQ(countAtClose, 1);
  EXPECT_EQ(folderAtClose, "Calendar");
  EXPECT_EQ(explorers.Get("Count").ToLong(), 1);
  EXPECT_TRUE(app.Get("ActiveExplorer").ToObject().Is(first->AsObject()));
  EXPECT_EQ(FailureOf([&] { second->AsObject().Get("CurrentFolder"); }).number(), hresult::kFail);
}

TEST_F(SimWindows, InspectorsOpenOnItemsAndFollowTheActiveWindow) {
  auto task = world.AddTask("Write report");
  const Object inspectors = app.Get("Inspectors").ToObject();
  int opened = 0;
  Subscription sub = inspectors.Subscribe("NewInspector", [&](EventArgs&) { ++opened; });
  task->AsObject().Call("Display");
  world.Activate(*world.ActiveExplorer());
  task->AsObject().Call("Display");  // reuses its inspector
  EXPECT_EQ(opened, 1);
  EXPECT_EQ(app.Get("ActiveWindow").ToObject().TypeName(), "Inspector");
  EXPECT_TRUE(
      app.Get("ActiveInspector").ToObject().Get("CurrentItem").ToObject().Is(task->AsObject()));
  // ActiveExplorer stays the explorer behind the inspector.
  EXPECT_EQ(app.Get("ActiveExplorer").ToObject().TypeName(), "Explorer");
  app.Get("ActiveInspector").ToObject().Call("Close", {Variant(int32_t{1})});
  EXPECT_EQ(inspectors.Get("Count").ToLong(), 0);
  EXPECT_EQ(app.Get("ActiveWindow").ToObject().TypeName(), "Explorer");
}

}  // namespace
}  // namespace qvx::sim
