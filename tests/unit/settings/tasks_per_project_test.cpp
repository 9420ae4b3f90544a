// cTasksPerProject: the activities of one project, by index and by name, as
// text, and the labels of its failures. The combo box is filled by the steps
// cSingleList shares (settings/combo_fill.h), tested with that list.
#include "settings/tasks_per_project.h"

#include <gtest/gtest.h>

#include "catalogue_fixture.h"

namespace qvx {
namespace {

using testing::Activities;
using testing::CatalogueFixture;
using testing::Strings;

TEST(TasksPerProject, FromStringSkipsEmptyPartsAndKeepsTheFirstOfAName) {
  CatalogueFixture f;
  cTasksPerProject p;
  p.FromString(f.s, ";Zeta,2011-4-15;;alpha;ZETA,2012-1-1;,;  Beta  ,x-y-z", ";");
  // Not sorted; "alpha" has no date field; "," is an activity with no name.
  EXPECT_EQ(Activities(p), (Strings{"Zeta", "alpha", "", "  Beta  "}));
  EXPECT_EQ(p.dicList.Find("zeta")->DueDate, DateSerial(2011, 4, 15));
  EXPECT_EQ(p.dicList.Find("alpha")->DueDate, kEmptyDate);
  EXPECT_EQ(p.dicList.Find("  Beta  ")->DueDate, kEmptyDate);
  // The index is found exactly; not found is the count, though the dictionary
  // has the name in another case. An item is trimmed.
  EXPECT_EQ(p.getItemIndex(f.s, "alpha"), 1);
  EXPECT_EQ(p.getItemIndex(f.s, "ALPHA"), 4);
  EXPECT_TRUE(p.dicList.Exists("ALPHA"));
  EXPECT_EQ(p.GetItem(f.s, 3), "Beta");
  EXPECT_EQ(p.GetItem(f.s, 4), "");
  EXPECT_EQ(p.GetItem(f.s, -1), "");
  EXPECT_TRUE(f.Reports().empty());
  EXPECT_FALSE(f.s.err.pending());
  p.FromString(f.s, "", ";");
  EXPECT_EQ(p.dicList.Count(), 0u);
}

// The whole is trimmed, so the first name's blank is lost; names are escaped.
TEST(TasksPerProject, ToStringTrimsTheWholeAndEscapesNames) {
  CatalogueFixture f;
  cTasksPerProject p;
  p.FromString(f.s, " beta,2011-1-1;a_COLON_b_SCOLON_c_COMMA_d,2024-12-9", ";");
  EXPECT_EQ(Activities(p), (Strings{" beta", "a:b;c,d"}));
  EXPECT_EQ(p.ToString(f.s, ";", false), "beta,2011-1-1;a_COLON_b_SCOLON_c_COMMA_d,2024-12-9");
}

// Activities are held by value, so only the control can be missing.
TEST(TasksPerProject, AComboFillWithoutAControlIsReported) {
  CatalogueFixture f;
  cTasksPerProject p;
  p.FromString(f.s, "a,", ";");
  std::string value = "x";
  p.PopulateComboList(f.s, Object(), value, false);
  EXPECT_TRUE(f.ReportedOnce("cTasksPerProject.PopulateComboList"));
}

TEST(TasksPerProject, IndexBeyondASixteenBitIntegerIsReported) {
  CatalogueFixture f;
  cTasksPerProject p;
  std::string text;
  for (int i = 0; i < 33000; ++i) text += "a" + std::to_string(i) + ",;";
  p.FromString(f.s, text, ";");
  EXPECT_EQ(p.getItemIndex(f.s, "a32767"), 32767);
  EXPECT_TRUE(f.Reports().empty());
  EXPECT_EQ(p.getItemIndex(f.s, "a32768"), 0);
  EXPECT_TRUE(f.ReportedOnce("TasksPerProject.getItemIndex"));
}

}  // namespace
}  // namespace qvx
