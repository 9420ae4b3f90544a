#include "reporting/current_selection.h"

#include <gtest/gtest.h>

#include "unit/reporting/report_fixture.h"

namespace qvx {
namespace {

using CurrentSelection = testing::ReportTest;

// An explorer's item or selection is what every command of the scenarios
// works on (tag_and_report.qvx, report_first_item.qvx).
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
