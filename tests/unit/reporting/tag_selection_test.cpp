// Actions::GetCurrentSelectedItem: which items get the tag, the EntryID
// guard, and the messages let through between two items of a selection.
#include "reporting/tag_selection.h"

#include "sim/faults.h"
#include "sim/outlook.h"
#include "unit/reporting/tagging_fixture.h"

namespace qvx::testing {
namespace {

class TagSelectionTest : public TaggingTest {
 protected:
  bool Tag(std::string_view value, std::string_view entryId) {
    return Actions::GetCurrentSelectedItem(s(), "ProjectValue", value, entryId);
  }
};

TEST_F(TagSelectionTest, NoActiveWindowTagsNothing) {
  host().StartsWithoutExplorer();
  world.addin().OnConnection(host().Application(), 1, Object());
  EXPECT_FALSE(Tag("Alpha", ""));
  EXPECT_TRUE(Reports().empty());
}

// The noted item alone and an inspector's item: tagging_selection_guard.qvx.
TEST_F(TagSelectionTest, AnEmptySelectionIsDealtWithAndOneItemNeedsItsId) {
  Connect();
  Select({});
  EXPECT_TRUE(Tag("Alpha", ""));
  auto item = Appointment("Planning");
  Select({item});
  EXPECT_FALSE(Tag("Alpha", ""));
  EXPECT_EQ(Prop(*item, "ProjectValue"), "(none)");
}

TEST_F(TagSelectionTest, AnItemThatRefusesItsValueIsReportedAndTheOthersAreTagged) {
  Connect();
  auto a = Appointment("A");
  auto b = Appointment("B");
  a->UserProperties()
      .Add("ProjectValue", host::olText, false)
      ->FailMember("Value", sim::hresult::kFail, "read-only");
  Select({a, b});
  EXPECT_TRUE(Tag("Alpha", ""));
  EXPECT_TRUE(Reported("Actions.TagProjectToItem"));
  EXPECT_EQ(Prop(*b, "ProjectValue"), "Alpha");
}

TEST_F(TagSelectionTest, AnUnreadableIdIsLeftAloneButARefusedSelectionIsReported) {
  Connect();
  auto a = Appointment("A");
  Select({a});
  const std::string id = a->EntryId();
  a->FailMember("EntryID", sim::hresult::kObjectDeleted, "The item has been moved or deleted.", 1);
  EXPECT_FALSE(Tag("Alpha", id));
  EXPECT_TRUE(Reports().empty());
  host().FailAt("ActiveExplorer.Selection", sim::hresult::kFail, "no selection here");
  EXPECT_FALSE(Tag("Alpha", id));
  EXPECT_TRUE(Reported("Actions.GetCurrentSelectedItem"));
  EXPECT_EQ(Prop(*a, "ProjectValue"), "(none)");
}

}  // namespace
}  // namespace qvx::testing
