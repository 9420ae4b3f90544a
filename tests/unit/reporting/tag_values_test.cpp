// The ribbon's tagging commands: project, activity and custom list values,
// the activity rule of a project change, and the tagging-in-progress flag.
#include "reporting/tag_values.h"

#include "settings/tasks_per_project_list.h"
#include "sim/faults.h"
#include "sim/outlook.h"
#include "unit/reporting/tagging_fixture.h"

namespace qvx::testing {
namespace {

class TagValuesTest : public TaggingTest {
 protected:
  void SetUp() override { Connect(); }
  std::string& selectedActivity() { return s().tagging.SELECTED_ACTIVITY_VALUE; }
};

TEST_F(TagValuesTest, AProjectKeepsAnActivityThatBelongsToIt) {
  auto item = Appointment("Planning");
  Select({item});
  selectedActivity() = "Design";
  Main::TagProjectValueToItem(s(), "Alpha");
  EXPECT_EQ(Prop(*item, "ProjectValue"), "Alpha");
  EXPECT_EQ(Prop(*item, "ActivityValue"), "(none)");
  EXPECT_EQ(selectedActivity(), "Design");
  EXPECT_FALSE(s().tagging.blnTaggingInProgress);
}

TEST_F(TagValuesTest, AnActivityOfAnotherProjectIsClearedBeforeTheProjectIsWritten) {
  settings().TagProjectToCategories = -1;
  auto item = Appointment("Planning");
  item->SetField("Categories", "Red");
  item->UserProperties().Set("ActivityValue", sim::kOlText, Variant("Build"));
  Select({item});
  selectedActivity() = "Build";
  Main::TagProjectValueToItem(s(), "Alpha");
  EXPECT_EQ(Prop(*item, "ActivityValue"), "");
  EXPECT_EQ(Prop(*item, "ProjectValue"), "Alpha");
  // The empty activity went in first, then the project in front of it.
  EXPECT_EQ(Categories(*item), "Alpha,,Red");
  EXPECT_EQ(selectedActivity(), "");
}

TEST_F(TagValuesTest, AProjectOutsideTheListIsWrittenAsTyped) {
  auto item = Appointment("Planning");
  Select({item});
  selectedActivity() = "Build";
  Main::TagProjectValueToItem(s(), "Free text");
  EXPECT_EQ(Prop(*item, "ProjectValue"), "Free text");
  EXPECT_EQ(Prop(*item, "ActivityValue"), "(none)");
  EXPECT_EQ(selectedActivity(), "Build");
}

TEST_F(TagValuesTest, AnEmptyProjectClearsTheActivityAndLeavesTheDates) {
  settings().UpdateStartDateWithProjectStartDate = -1;
  settings().UpdateAppointmentEndDateWith = -1;
  settings().UpdateTaskDueDateWith = -1;
  auto item = Appointment("Planning");
  item->UserProperties().Set("ProjectValue", sim::kOlText, Variant("Alpha"));
  item->UserProperties().Set("ActivityValue", sim::kOlText, Variant("Design"));
  const DateValue start = Date(*item, "Start");
  const DateValue end = Date(*item, "End");
  Select({item});
  selectedActivity() = "Design";
  Main::TagProjectValueToItem(s(), "");
  EXPECT_EQ(Prop(*item, "ProjectValue"), "");
  EXPECT_EQ(Prop(*item, "ActivityValue"), "");
  EXPECT_EQ(selectedActivity(), "");
  EXPECT_EQ(Date(*item, "Start"), start);
  EXPECT_EQ(Date(*item, "End"), end);
}

TEST_F(TagValuesTest, ACatalogueNotYetLoadedIsReadFirst) {
  settings().MyProjectsTasks = std::make_shared<cTasksPerProjectList>();
  auto item = Appointment("Planning");
  Select({item});
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

TEST_F(TagValuesTest, AReportedFailureLeavesTheFlagSet) {
  auto item = Appointment("Planning");
  Select({item});
  item->FailMember("EntryID", sim::hresult::kFail, "boom");
  Main::TagProjectValueToItem(s(), "Alpha");
  EXPECT_TRUE(Reported("Main.TagProjectValueToItem", 20));
  EXPECT_TRUE(s().tagging.blnTaggingInProgress);
  EXPECT_EQ(Prop(*item, "ProjectValue"), "(none)");
}

TEST_F(TagValuesTest, ASelectionMovedByMessagesIsNotTaggedByTheNextStep) {
  auto a = Appointment("A");
  auto b = Appointment("B");
  auto other = Appointment("Other");
  Select({a, b});
  selectedActivity() = "Build";  // not Alpha's: cleared first, across the selection
  host().Pending().Post([&] { Select({other}); });
  Main::TagProjectValueToItem(s(), "Alpha");
  EXPECT_EQ(Prop(*a, "ActivityValue"), "");
  EXPECT_EQ(Prop(*b, "ActivityValue"), "");
  // The project step finds one other item where the first one was noted.
  EXPECT_EQ(Prop(*a, "ProjectValue"), "(none)");
  EXPECT_EQ(Prop(*b, "ProjectValue"), "(none)");
  EXPECT_TRUE(other->UserProperties().list().empty());
  EXPECT_FALSE(s().tagging.blnTaggingInProgress);
}

TEST_F(TagValuesTest, AnInspectorsNewItemTakesAProjectButNoActivity) {
  auto item = host().app().CreateItem(sim::kAppointmentItem);
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
