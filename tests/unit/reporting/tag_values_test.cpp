// The ribbon's tagging commands: project and activity values, the activity
// rule of a project change, and the tagging-in-progress flag. Custom list
// values by number are tagging_custom_fields.qvx's.
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

// A project outside the catalogue and an empty selection:
// tagging_project_activity.qvx and tagging_selection_guard.qvx.
TEST_F(TagValuesTest, AnUnreadCatalogueIsReadFirst) {
  auto item = Appointment("Planning");
  Select({item});
  settings().MyProjectsTasks = std::make_shared<cTasksPerProjectList>();
  selectedActivity() = "Design";
  Main::TagProjectValueToItem(s(), " Beta ");
  EXPECT_EQ(settings().MyProjectsTasks->dicList.Count(), 3u);
  EXPECT_EQ(Prop(*item, "ActivityValue"), "");  // Design isn't Beta's
  EXPECT_EQ(Prop(*item, "ProjectValue"), " Beta ");
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

}  // namespace
}  // namespace qvx::testing
