// cTasksPerProject: the activities of one project, by index and by name, as
// text and in a combo box, and the labels of its failures.
#include "settings/tasks_per_project.h"

#include <gtest/gtest.h>

#include <functional>

#include "catalogue_fixture.h"
#include "sim/fake_object.h"

namespace qvx {
namespace {

using testing::Activities;
using testing::CatalogueFixture;
using testing::Day;
using testing::Strings;

// A combo box with Text, Clear, AddItem, ListCount and List(i).
struct Combo {
  explicit Combo(std::string text = "") {
    object = std::make_shared<sim::FakeObject>("CommandBarComboBox");
    object->Property("Text", Variant(text)).Property("ListIndex", Variant(int32_t{-1}));
    object->Method("Clear", 0, 0, [this](sim::Args&) {
      rows.clear();
      return Variant();
    });
    object->Method("AddItem", 1, 2, [this](sim::Args& a) {
      rows.push_back(a[0].ToText());
      return Variant();
    });
    object->Method("ListCount", 0, 0,
                   [this](sim::Args&) { return Variant(static_cast<int32_t>(rows.size())); });
    object->Method("List", 1, 1, [this](sim::Args& a) {
      const auto i = static_cast<size_t>(a[0].ToLong());
      if (i >= rows.size()) throw Failure::Runtime(5);
      return Variant(rows[i]);
    });
  }
  std::shared_ptr<sim::FakeObject> object;
  Strings rows;
};

TEST(TasksPerProject, FromStringSkipsEmptyPartsAndKeepsTheFirstOfAName) {
  CatalogueFixture f;
  cTasksPerProject p;
  p.FromString(f.s, ";Zeta,2011-4-15;;alpha;ZETA,2012-1-1;,;Beta,x-y-z", ";");
  // Not sorted; "alpha" has no date field; "," is an activity with no name.
  EXPECT_EQ(Activities(p), (Strings{"Zeta", "alpha", "", "Beta"}));
  EXPECT_EQ((*p.dicList.Find("zeta"))->DueDate, Day(2011, 4, 15));
  EXPECT_EQ((*p.dicList.Find("alpha"))->DueDate, kEmptyDate);
  EXPECT_EQ((*p.dicList.Find("Beta"))->DueDate, kEmptyDate);
  EXPECT_TRUE(f.ui.reports.empty());
  EXPECT_FALSE(f.s.err.pending());
  p.FromString(f.s, "", ";");
  EXPECT_EQ(p.dicList.Count(), 0u);
}

TEST(TasksPerProject, GetItemIndexIsExactAndNotFoundIsTheCount) {
  CatalogueFixture f;
  cTasksPerProject p;
  p.FromString(f.s, "Design,;Review,;Test,", ";");
  EXPECT_EQ(p.getItemIndex(f.s, "Design"), 0);
  EXPECT_EQ(p.getItemIndex(f.s, "Test"), 2);
  EXPECT_EQ(p.getItemIndex(f.s, "TEST"), 3);  // though the dictionary has it
  EXPECT_TRUE(p.dicList.Exists("TEST"));
  EXPECT_EQ(p.getItemIndex(f.s, "Deploy"), 3);
  EXPECT_EQ(p.getItemIndex(f.s, ""), 3);
}

TEST(TasksPerProject, GetItemTrimsAndIsEmptyOutsideTheList) {
  CatalogueFixture f;
  cTasksPerProject p;
  p.FromString(f.s, "  Design  ,;Review,", ";");
  EXPECT_EQ(p.GetItem(f.s, 0), "Design");
  EXPECT_EQ(p.GetItem(f.s, 1), "Review");
  EXPECT_EQ(p.GetItem(f.s, 2), "");
  EXPECT_EQ(p.GetItem(f.s, -1), "");
  EXPECT_TRUE(f.ui.reports.empty());
}

TEST(TasksPerProject, ToStringTrimsTheWholeAndSortsOnlyWhenAsked) {
  CatalogueFixture f;
  cTasksPerProject p;
  p.FromString(f.s, " beta,2011-1-1;Alpha,", ";");
  EXPECT_EQ(p.ToString(f.s, ";", false), "beta,2011-1-1;Alpha,");  // first name's blank lost
  EXPECT_EQ(Activities(p), (Strings{" beta", "Alpha"}));
  EXPECT_EQ(p.ToString(f.s, "|", true), "beta,2011-1-1|Alpha,");  // " beta" sorts first
  p.FromString(f.s, "b,;A,;c,", ";");
  EXPECT_EQ(p.ToString(f.s, ";", true), "A,;b,;c,");
  EXPECT_EQ(Activities(p), (Strings{"A", "b", "c"}));  // the sort replaced the dictionary
}

TEST(TasksPerProject, ToStringTabSkipsEmptyNamesWithOneMoreTabEach) {
  CatalogueFixture f;
  cTasksPerProject p;
  p.FromString(f.s, "a,;,;b,", ";");
  EXPECT_EQ(p.ToStringTab(f.s), "a\tb\t\t ");
  cTasksPerProject empty;
  EXPECT_EQ(empty.ToStringTab(f.s), "\t ");
}

TEST(TasksPerProject, PopulateComboListSkipsEmptyNamesAndAddsTheBlankLast) {
  CatalogueFixture f;
  cTasksPerProject p;
  p.FromString(f.s, "Design,;,;  ,;Review,", ";");
  Combo combo;
  std::string value = "Review";
  p.PopulateComboList(f.s, combo.object->AsObject(), value, true);
  EXPECT_EQ(combo.rows, (Strings{"Design", "Review", ""}));
  EXPECT_EQ(combo.object->Value("Text").ToText(), "Review");
  EXPECT_EQ(value, "Review");
}

TEST(TasksPerProject, PopulateComboListKeepsTheTextShownBefore) {
  CatalogueFixture f;
  cTasksPerProject p;
  p.FromString(f.s, "Design,;Review,", ";");
  Combo combo("Typed");
  std::string value = "Design";
  p.PopulateComboList(f.s, combo.object->AsObject(), value, false);
  EXPECT_EQ(value, "Typed");
  EXPECT_EQ(combo.object->Value("Text").ToText(), "Typed");
}

TEST(TasksPerProject, RecordsOfTheTwoSmallClasses) {
  CatalogueFixture f;
  cTasksClient task;
  task.Activity = "a:b;c,d";
  task.DueDate = Day(2024, 12, 9);
  EXPECT_EQ(task.ToString(f.s), "a_COLON_b_SCOLON_c_COMMA_d,2024-12-9");
  cProjectClient project;
  project.ListName = "P";
  project.intColorCode = -3;
  project.FinishDate = Day(2025, 1, 31);
  EXPECT_EQ(project.ToString(f.s), "P,-3,,2025-1-31");
}

TEST(TasksPerProject, FailuresAreReportedUnderTheirLabels) {
  struct Row {
    const char* label;
    std::function<void(AddinState&, cTasksPerProject&)> call;
  };
  const Row rows[] = {
      {"TasksPerProject.getItemIndex",
       [](AddinState& s, cTasksPerProject& p) { EXPECT_EQ(p.getItemIndex(s, "gone"), 0); }},
      {"TasksPerProject.GetItem",
       [](AddinState& s, cTasksPerProject& p) { EXPECT_EQ(p.GetItem(s, 0), ""); }},
      {"cTasksPerProject.GetString",
       [](AddinState& s, cTasksPerProject& p) { EXPECT_EQ(p.ToString(s, ";", false), ""); }},
      {"cTasksPerProject.GetString",
       [](AddinState& s, cTasksPerProject& p) { EXPECT_EQ(p.ToStringTab(s), ""); }},
      {"cTasksPerProject.PopulateComboList",
       [](AddinState& s, cTasksPerProject& p) {
         std::string value = "x";
         p.PopulateComboList(s, Object(), value, false);
       }},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.label);
    CatalogueFixture f;
    cTasksPerProject p;
    p.dicList.Add("gone", nullptr);  // an entry whose object is gone
    row.call(f.s, p);
    ASSERT_EQ(f.ui.reports.size(), 1u);
    EXPECT_EQ(f.ReportedLabel(), std::string("In Function: ") + row.label);
  }
}

TEST(TasksPerProject, IndexBeyondASixteenBitIntegerIsReported) {
  CatalogueFixture f;
  cTasksPerProject p;
  for (int i = 0; i < 33000; ++i) {
    auto task = std::make_shared<cTasksClient>();
    task->Activity = "a" + std::to_string(i);
    p.dicList.Add(task->Activity, task);
  }
  EXPECT_EQ(p.getItemIndex(f.s, "a32767"), 32767);
  EXPECT_TRUE(f.ui.reports.empty());
  EXPECT_EQ(p.getItemIndex(f.s, "a32768"), 0);
  EXPECT_EQ(f.ReportedLabel(), "In Function: TasksPerProject.getItemIndex");
}

}  // namespace
}  // namespace qvx
