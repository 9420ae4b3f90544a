// An explorer's selection in the simulated host, seen through Object. What
// the add-in sees of explorers and inspectors opening and closing is proven
// by tests/scenarios/explorer_*.qvx and inspector_*.qvx.
#include <gtest/gtest.h>

#include "core/dates.h"
#include "sim/errors.h"
#include "sim/explorer.h"
#include "sim/item_classes.h"
#include "sim/outlook.h"
#include "unit/sim/sim_test_util.h"

namespace qvx::sim {
namespace {

using testing::FailureOf;

TEST(SimWindows, SelectionIsASnapshotOfWhatTheTestSelected) {
  Outlook world;
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

}  // namespace
}  // namespace qvx::sim
