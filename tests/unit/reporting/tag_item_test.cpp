// Actions::TagProjectToItem: the property, the category, the save, and items
// that refuse. An item gone meanwhile: tagging_selection_guard.qvx.
#include "reporting/tag_item.h"

#include "sim/faults.h"
#include "unit/reporting/tagging_fixture.h"

namespace qvx::testing {
namespace {

using TagItemTest = TaggingTest;

TEST_F(TagItemTest, WritesATextPropertyOverTheOldOneAndSavesIfAsked) {
  Connect();
  auto item = Appointment("Planning");
  item->UserProperties().Set("Field5Value", host::olText, Variant("Old"));
  const int savesBefore = item->saveCount();
  EXPECT_TRUE(Tag(*item, "Field5Value", "free text"));
  auto property = item->UserProperties().Find("Field5Value");
  ASSERT_TRUE(property);
  EXPECT_EQ(property->type(), host::olText);
  EXPECT_EQ(property->value().ToText(), "free text");
  EXPECT_EQ(item->UserProperties().list().size(), 1u);
  EXPECT_EQ(item->saveCount(), savesBefore + 1);
  EXPECT_TRUE(Tag(*item, "Field9Value", "12", false));
  EXPECT_EQ(Prop(*item, "Field9Value"), "12");
  EXPECT_EQ(item->saveCount(), savesBefore + 1);
  EXPECT_TRUE(Reports().empty());
}

TEST_F(TagItemTest, CategoryFollowsTheSettingsOfThePropertyKind) {
  const struct {
    int16_t project, task, custom;
    std::string_view property;
    bool category;
  } rows[] = {
      {-1, 0, 0, "ProjectValue", true},  {0, -1, 0, "ProjectValue", true},
      {0, 0, -1, "ProjectValue", false}, {-1, 0, 0, "ActivityValue", true},
      {0, 1, 0, "ActivityValue", true},  {-1, -1, 0, "Field1Value", false},
      {0, 0, -1, "Field1Value", true},   {0, 0, -1, "Field8Value", true},
      {0, 0, -1, "Field9Value", false},  {0, -1, 0, "Field9Value", true},
      {-1, 0, 0, "Field10Value", true},  {0, 0, 0, "ProjectValue", false},
  };
  Connect();
  for (const auto& row : rows) {
    settings().TagProjectToCategories = row.project;
    settings().TagTaskToCategories = row.task;
    settings().TagCustomFieldsToCategories = row.custom;
    auto item = Appointment("Planning");
    EXPECT_TRUE(Tag(*item, row.property, "Value"));
    EXPECT_EQ(Categories(*item), row.category ? "Value" : "")
        << row.property << " " << row.project << row.task << row.custom;
  }
}

TEST_F(TagItemTest, NothingIsTakenOutOfTheCategories) {
  Set("TagProjectToCategories", "-1");
  Connect();
  auto item = Appointment("Planning");
  item->SetField("Categories", "Alpha");
  Tag(*item, "ProjectValue", "Alpha");
  EXPECT_EQ(Categories(*item), "Alpha,Alpha");
}

// An occurrence and its series: tag_dates.qvx.
// Only a value the property refuses is reported; it ends the tag unsaved.
TEST_F(TagItemTest, RefusalsArePassedOverButARefusedValueIsReported) {
  Set("TagProjectToCategories", "-1");
  Connect();
  auto noProperties = Appointment("A");
  const int savesBefore = noProperties->saveCount();
  noProperties->FailMember("UserProperties", sim::hresult::kFail, "You don't have permission.");
  EXPECT_TRUE(Tag(*noProperties, "ProjectValue", "Alpha"));
  EXPECT_EQ(noProperties->saveCount(), savesBefore);  // nothing written, nothing saved
  auto noCategories = Appointment("B");
  noCategories->FailMember("Categories", sim::Fault{sim::hresult::kFail, "no", sim::kHostSource,
                                                    sim::kAlways, InvokeKind::Put});
  noCategories->FailMember("Save", sim::hresult::kFail, "The item could not be saved.");
  EXPECT_TRUE(Tag(*noCategories, "ProjectValue", "Beta"));
  EXPECT_EQ(Prop(*noCategories, "ProjectValue"), "Beta");
  EXPECT_EQ(Categories(*noCategories), "");
  EXPECT_TRUE(Reports().empty());
  EXPECT_FALSE(s().err.pending());

  auto readOnly = Appointment("C");
  readOnly->UserProperties()
      .Add("ProjectValue", host::olText, false)
      ->FailMember("Value", sim::hresult::kFail, "The property is read-only.");
  EXPECT_FALSE(Tag(*readOnly, "ProjectValue", "Alpha"));
  EXPECT_TRUE(Reported("Actions.TagProjectToItem"));
  EXPECT_EQ(readOnly->saveCount(), savesBefore);
  EXPECT_EQ(Categories(*readOnly), "");
}

}  // namespace
}  // namespace qvx::testing
