// The ribbon's tagging commands: project, activity and custom list values,
// the activity rule of a project change, and the tagging-in-progress flag.
#include "reporting/tag_values.h"

#include "settings/tasks_per_project_list.h"
#include "sim/outlook.h"
#include "unit/reporting/tagging_fixture.h"

namespace qvx::testing {
namespace {

class TagValuesTest : public TaggingTest {
 protected:
  void SetUp() override { Connect(); }
  std::string& selectedActivity() { return s().ribbon.explorer.SELECTED_ACTIVITY_VALUE; }
};

TEST_F(TagValuesTest, AProjectOutsideTheListKeepsTheActivityAndAnUnreadCatalogueIsReadFirst) {
  auto item = Appointment("Planning");
  Select({item});
  selectedActivity() = "Build";
  Main::TagProjectValueToItem(s(), "Free text");
  EXPECT_EQ(Prop(*item, "ProjectValue"), "Free text");
  EXPECT_EQ(Prop(*item, "ActivityValue"), "(none)");
  EXPECT_EQ(selectedActivity(), "Build");

  settings().MyProjectsTasks = std::make_shared<cTasksPerProjectList>();
  selectedActivity() = "Design";
  Main::TagProjectValueToItem(s(), " Beta ");
  EXPECT_EQ(settings().MyProjectsTasks->dicList.Count(), 3u);
  EXPECT_EQ(Prop(*item, "ActivityValue"), "");  // Design isn't Beta's
  EXPECT_EQ(Prop(*item, "ProjectValue"), " Beta ");
}

TEST_F(TagValuesTest, NothingSelectedWritesNothing) {
  auto item = Appointment("Planning");
  Select({});
  Main::TagProjectValueToItem(s(), "Alpha");
  Main::TagTaskValueToItem(s(), "Design");
  Main::TagCustomFieldValueToItem(s(), 1, "x");
  EXPECT_TRUE(item->UserProperties().list().empty());
  EXPECT_FALSE(s().tagging.blnTaggingInProgress);
  EXPECT_TRUE(Reports().empty());
}

TEST_F(TagValuesTest, TheFlagIsSetWhileTheSelectionIsWorked) {
  auto a = Appointment("A");
  auto b = Appointment("B");
  Select({a, b});
  std::vector<bool> seen;
  host().Pending().Post([&] { seen.push_back(s().tagging.blnTaggingInProgress); });
  Main::TagProjectValueToItem(s(), "Alpha");
  ASSERT_EQ(seen.size(), 1u);
  EXPECT_TRUE(seen[0]);
  EXPECT_FALSE(s().tagging.blnTaggingInProgress);
  // The activity command doesn't raise it.
  host().Pending().Post([&] { seen.push_back(s().tagging.blnTaggingInProgress); });
  Main::TagTaskValueToItem(s(), "Design");
  ASSERT_EQ(seen.size(), 2u);
  EXPECT_FALSE(seen[1]);
  EXPECT_EQ(Prop(*b, "ActivityValue"), "Design");
}

TEST_F(TagValuesTest, AnInspectorsNewItemTakesAProjectButNoActivity) {
  auto item = host().app().CreateItem(host::olAppointmentItem);
  host().OpenInspector(item);
  ASSERT_EQ(item->EntryId(), "");
  Main::TagTaskValueToItem(s(), "Design");
  EXPECT_EQ(Prop(*item, "ActivityValue"), "(none)");
  Main::TagProjectValueToItem(s(), "Beta");
  EXPECT_EQ(Prop(*item, "ProjectValue"), "Beta");
  // The inspector's save gave it an id: now the activity goes in too.
  Main::TagTaskValueToItem(s(), "Build");
  EXPECT_EQ(Prop(*item, "ActivityValue"), "Build");
}

TEST_F(TagValuesTest, CustomListValuesByFieldNumber) {
  const struct {
    int16_t field;
    std::string_view property;  // "" for none
  } rows[] = {{1, "Field1Value"},
              {2, "Field2Value"},
              {3, "Field3Value"},
              {4, "Field4Value"},
              {0, ""},
              {5, ""},
              {10, ""},
              {-1, ""}};
  for (const auto& row : rows) {
    auto item = Appointment("Planning");
    Select({item});
    Main::TagCustomFieldValueToItem(s(), row.field, "Berlin");
    if (row.property.empty()) {
      EXPECT_TRUE(item->UserProperties().list().empty()) << row.field;
    } else {
      EXPECT_EQ(Prop(*item, row.property), "Berlin") << row.field;
      EXPECT_EQ(item->UserProperties().list().size(), 1u) << row.field;
    }
  }
}

}  // namespace
}  // namespace qvx::testing
