// A folder's views and the explorer's current view, and the ItemChange that
// a folder's Items raise, as the view provisioning and the toolbars use them.
#include <gtest/gtest.h>

#include "core/dates.h"
#include "sim/explorer.h"
#include "sim/folder.h"
#include "sim/item_classes.h"
#include "sim/outlook.h"
#include "unit/sim/sim_test_util.h"

namespace qvx::sim {
namespace {

using testing::FailureOf;

class SimViewsTest : public ::testing::Test {
 protected:
  Outlook world;
  std::shared_ptr<SimExplorer> explorer = world.OpenExplorer(world.Calendar());
  Object folder = world.Calendar()->AsObject();
  Object views = folder.Get("Views").ToObject();
};

TEST_F(SimViewsTest, AViewIsAddedFilledSavedAppliedAndDeleted) {
  const Object view =
      views.Call("Add", {Variant("Reported State"), Variant(int32_t{0}), Variant(int32_t{0})})
          .ToObject();
  EXPECT_EQ(views.Get("Count").ToLong(), 2);
  EXPECT_TRUE(views.Call("Item", {Variant("reported state")}).ToObject().Is(view));
  EXPECT_EQ(views.Enumerate().size(), 2u);
  view.Put("XML", Variant("<?xml version=\"1.0\"?><view type=\"table\"/>"));
  EXPECT_EQ(view.Get("XML").ToText(), "<?xml version=\"1.0\"?><view type=\"table\"/>");
  EXPECT_EQ(FailureOf([&] { view.Put("XML", Variant("")); }).number(), hresult::kFail);
  view.Call("Save");
  view.Call("Apply");
  EXPECT_TRUE(explorer->AsObject().Get("CurrentView").ToObject().Is(view));
  view.Call("Delete");
  EXPECT_EQ(FailureOf([&] { views.Call("Item", {Variant("Reported State")}); }).number(),
            hresult::kIndexOutOfBounds);
  EXPECT_EQ(explorer->AsObject().Get("CurrentView").ToObject().Get("Name").ToText(), "Calendar");
  const Object standard = views.Call("Item", {Variant(int32_t{1})}).ToObject();
  EXPECT_EQ(FailureOf([&] { standard.Call("Delete"); }).number(), hresult::kFail);
  EXPECT_EQ(FailureOf([&] {
              views.Call("Add", {Variant("Calendar"), Variant(int32_t{2})});
            }).number(),
            hresult::kInvalidArg);
}

TEST_F(SimViewsTest, ExplorerCurrentViewTakesANameAndRaisesTheSwitch) {
  views.Call("Add", {Variant("Reported Items"), Variant(int32_t{0})});
  int switches = 0;
  Subscription s = explorer->AsObject().Subscribe("ViewSwitch", [&](EventArgs&) { ++switches; });
  explorer->AsObject().Put("CurrentView", Variant("Reported Items"));
  EXPECT_EQ(switches, 1);
  EXPECT_EQ(explorer->AsObject().Get("CurrentView").ToObject().Get("Name").ToText(),
            "Reported Items");
}

TEST_F(SimViewsTest, SavingAnItemRaisesItemChangeOnItsFolderItems) {
  auto meeting = world.AddAppointment("Planning", DateSerial(2026, 3, 2), DateSerial(2026, 3, 3));
  const Object items = folder.Get("Items").ToObject();
  Object changed;
  Subscription s =
      items.Subscribe("ItemChange", [&](EventArgs& a) { changed = a.at(0).ToObject(); });
  meeting->AsObject().Put("Subject", Variant("Planning, moved"));
  meeting->AsObject().Call("Save");
  EXPECT_TRUE(changed.Is(meeting->AsObject()));
}

}  // namespace
}  // namespace qvx::sim
