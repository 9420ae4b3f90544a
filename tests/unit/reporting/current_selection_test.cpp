#include "reporting/current_selection.h"

#include <gtest/gtest.h>

#include "unit/reporting/report_fixture.h"

namespace qvx {
namespace {

using CurrentSelection = testing::ReportTest;

TEST_F(CurrentSelection, AnExplorerGivesItsItemOrItsSelection) {
  auto a = Appointment("A");
  auto b = Appointment("B");
  auto explorer = Select({});
  EXPECT_TRUE(Main::GetCurrentSelectedItem(t.s, true).IsNothing());
  EXPECT_TRUE(Main::GetCurrentSelectedItemExplorer(t.s).IsNothing());

  world.Select(*explorer, {b});
  for (bool multiple : {true, false}) {
    EXPECT_TRUE(Main::GetCurrentSelectedItem(t.s, multiple).Is(b->AsObject())) << multiple;
  }

  world.Select(*explorer, {b, a});
  const Object several = Main::GetCurrentSelectedItem(t.s, true);
  EXPECT_EQ(several.TypeName(), "Selection");
  EXPECT_EQ(several.Get("Count").ToLong(), 2);
  EXPECT_TRUE(Main::GetCurrentSelectedItem(t.s, false).Is(b->AsObject()));
  EXPECT_TRUE(Main::GetCurrentSelectedItemExplorer(t.s).Is(b->AsObject()));
  EXPECT_FALSE(t.s.report.blnLastItemFromInspector);
}

TEST_F(CurrentSelection, AnInspectorGivesItsItemAndIsNoted) {
  auto a = Appointment("A");
  auto b = Appointment("B");
  Select({a});
  world.OpenInspector(b);
  EXPECT_TRUE(Main::GetCurrentSelectedItem(t.s, true).Is(b->AsObject()));
  EXPECT_TRUE(t.s.report.blnLastItemFromInspector);
  // The explorer twin looks at explorers only.
  EXPECT_TRUE(Main::GetCurrentSelectedItemExplorer(t.s).IsNothing());

  world.Activate(*world.Explorers().back());
  EXPECT_TRUE(Main::GetCurrentSelectedItem(t.s, false).Is(a->AsObject()));
  EXPECT_FALSE(t.s.report.blnLastItemFromInspector);
}

TEST_F(CurrentSelection, NoWindowOrAnUnreadableOneGivesNothingAndNoFailure) {
  Select({Appointment("A")});
  world.FailAt("ActiveWindow", -2147467259, "The operation failed.", 1);
  EXPECT_TRUE(Main::GetCurrentSelectedItem(t.s, true).IsNothing());
  world.FailAt("ActiveExplorer.Selection.Item", -2147467259, "The operation failed.", 2);
  EXPECT_TRUE(Main::GetCurrentSelectedItem(t.s, false).IsNothing());
  EXPECT_TRUE(Main::GetCurrentSelectedItemExplorer(t.s).IsNothing());
  // A refused selection is an empty one.
  world.FailAt("ActiveExplorer.Selection", -2147467259, "The operation failed.");
  EXPECT_TRUE(Main::GetCurrentSelectedItem(t.s, true).IsNothing());
  EXPECT_TRUE(Main::GetCurrentSelectedItemExplorer(t.s).IsNothing());
  world.StartsWithoutExplorer();
  t.s.report.blnLastItemFromInspector = true;
  EXPECT_TRUE(Main::GetCurrentSelectedItem(t.s, true).IsNothing());
  EXPECT_FALSE(t.s.report.blnLastItemFromInspector);
  EXPECT_TRUE(Main::GetCurrentSelectedItemExplorer(t.s).IsNothing());
  EXPECT_FALSE(t.s.err.pending());
  EXPECT_TRUE(t.Reports().empty());
}

}  // namespace
}  // namespace qvx
