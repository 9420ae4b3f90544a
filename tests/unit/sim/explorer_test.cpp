// Selection, folder switches and views of a simulated explorer.
#include <gtest/gtest.h>

#include "sim/explorer.h"
#include "sim/folder.h"
#include "sim/item_classes.h"
#include "sim/outlook.h"
#include "sim/views.h"
#include "unit/sim/sim_test_util.h"

namespace qvx::sim {
namespace {

using testing::EventLog;
using testing::FailureOf;

class SimExplorerTest : public ::testing::Test {
 protected:
  Outlook world;
  std::shared_ptr<SimAppointment> first =
      world.AddAppointment("First", DateSerial(2026, 2, 2), DateSerial(2026, 2, 3));
  std::shared_ptr<SimAppointment> second =
      world.AddAppointment("Second", DateSerial(2026, 2, 4), DateSerial(2026, 2, 5));
  std::shared_ptr<SimExplorer> explorer = world.OpenExplorer(world.Calendar());
  Object e = explorer->AsObject();
};

TEST_F(SimExplorerTest, SelectionIsASnapshotOfWhatTheTestSelected) {
  EventLog log;
  log.Listen(e, "SelectionChange");
  world.Select(*explorer, {first, second});
  const Object selection = e.Get("Selection").ToObject();
  EXPECT_EQ(selection.TypeName(), "Selection");
  EXPECT_EQ(selection.Get("Count").ToLong(), 2);
  EXPECT_TRUE(selection.Call("Item", {Variant(int32_t{2})}).ToObject().Is(second->AsObject()));
  EXPECT_EQ(FailureOf([&] { selection.Call("Item", {Variant(int32_t{3})}); }).number(),
            hresult::kIndexOutOfBounds);
  world.Select(*explorer, {});
  EXPECT_EQ(selection.Get("Count").ToLong(), 2);  // the snapshot keeps its items
  EXPECT_EQ(e.Get("Selection").ToObject().Get("Count").ToLong(), 0);
  EXPECT_EQ(log.heard, (std::vector<std::string>{"SelectionChange", "SelectionChange"}));
}

TEST_F(SimExplorerTest, FaultsOnOneSelectionReachTheNextOnes) {
  world.Select(*explorer, {first});
  e.Get("Selection").ToObject();
  world.FailAt("ActiveExplorer.Selection.Count", hresult::kFail, "busy", 1);
  const Object later = e.Get("Selection").ToObject();
  EXPECT_EQ(FailureOf([&] { later.Get("Count"); }).description(), "busy");
  EXPECT_EQ(later.Get("Count").ToLong(), 1);
}

TEST_F(SimExplorerTest, PuttingCurrentFolderSwitchesAndSelectsTheFirstItem) {
  EventLog log;
  for (const char* event : {"BeforeFolderSwitch", "FolderSwitch", "SelectionChange"}) {
    log.Listen(e, event);
  }
  auto tasks = world.Tasks();
  auto task = world.AddTask("Only task");
  e.Put("CurrentFolder", tasks->AsVariant());
  EXPECT_EQ(log.heard,
            (std::vector<std::string>{"BeforeFolderSwitch", "FolderSwitch", "SelectionChange"}));
  EXPECT_EQ(e.Get("CurrentFolder").ToObject().Get("DefaultItemType").ToLong(), kTaskItem);
  const Object selection = e.Get("Selection").ToObject();
  ASSERT_EQ(selection.Get("Count").ToLong(), 1);
  EXPECT_TRUE(selection.Call("Item", {Variant(int32_t{1})}).ToObject().Is(task->AsObject()));
  EXPECT_EQ(FailureOf([&] { e.Put("CurrentFolder", Variant("Tasks")); }).number(), 424);
}

TEST_F(SimExplorerTest, ABeforeFolderSwitchHandlerMayCancel) {
  Subscription veto = e.Subscribe("BeforeFolderSwitch", [](EventArgs& a) {
    EXPECT_EQ(a.at(0).ToObject().Get("Name").ToText(), "Inbox");
    a.at(1) = Variant(true);
  });
  EXPECT_FALSE(world.SwitchFolder(*explorer, world.Inbox()));
  EXPECT_EQ(explorer->folder(), world.Calendar());
}

TEST_F(SimExplorerTest, CurrentViewFollowsApplyAndPutByName) {
  const Object view = e.Get("CurrentView").ToObject();
  EXPECT_EQ(view.Get("Name").ToText(), "Calendar");
  const Object views = e.Get("CurrentFolder").ToObject().Get("Views").ToObject();
  const Object mine =
      views.Call("Add", {Variant("Reported State"), Variant(int32_t{0}), Variant(int32_t{0})})
          .ToObject();
  mine.Put("XML", Variant("<?xml version=\"1.0\"?><view type=\"table\"/>"));
  mine.Call("Save");
  mine.Call("Apply");
  EXPECT_TRUE(e.Get("CurrentView").ToObject().Is(mine));
  EventLog log;
  log.Listen(e, "ViewSwitch");
  e.Put("CurrentView", Variant("calendar"));
  EXPECT_EQ(e.Get("CurrentView").ToObject().Get("Name").ToText(), "Calendar");
  EXPECT_EQ(log.heard, (std::vector<std::string>{"ViewSwitch"}));
  auto sim = world.Calendar()->views().Find("REPORTED STATE");
  ASSERT_NE(sim, nullptr);
  EXPECT_EQ(sim->saves(), 1);
  EXPECT_EQ(sim->applies(), 1);
}

TEST_F(SimExplorerTest, ViewsRefuseWhatTheHostRefuses) {
  const Object views = world.Calendar()->views().AsObject();
  EXPECT_THROW(views.Call("Item", {Variant("Missing")}), Failure);
  const Object view = views.Call("Add", {Variant("Project"), Variant(int32_t{0})}).ToObject();
  EXPECT_THROW(views.Call("Add", {Variant("PROJECT"), Variant(int32_t{0})}), Failure);
  EXPECT_THROW(view.Put("XML", Variant("")), Failure);
  EXPECT_THROW(views.Call("Item", {Variant("Calendar")}).ToObject().Call("Delete"), Failure);
  std::vector<std::string> names;
  for (const Variant& v : views.Enumerate()) {
    names.push_back(v.ToObject().Get("Name").ToText());
    if (names.back() == "Project") v.ToObject().Call("Delete");  // deleting during the walk
  }
  EXPECT_EQ(names, (std::vector<std::string>{"Calendar", "Project"}));
  EXPECT_EQ(views.Get("Count").ToLong(), 1);
  EXPECT_THROW(view.Get("Name"), Failure);  // a deleted view is gone
}

}  // namespace
}  // namespace qvx::sim
