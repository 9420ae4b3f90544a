// Actions::TagProjectToItem and IsCustomFieldProperty: the property, the
// category, the save, and items that have gone or refuse.
#include "reporting/tag_item.h"

#include "sim/faults.h"
#include "unit/reporting/tagging_fixture.h"

namespace qvx::testing {
namespace {

using TagItemTest = TaggingTest;

TEST(IsCustomFieldProperty, OnlyFieldsOneToEightCaseIncluded) {
  const struct {
    std::string_view name;
    bool custom;
  } rows[] = {{"Field1Value", true},    {"Field4Value", true},  {"Field5Value", true},
              {"Field8Value", true},    {"Field9Value", false}, {"Field10Value", false},
              {"field1value", false},   {"FIELD2VALUE", false}, {"ProjectValue", false},
              {"ActivityValue", false}, {"Field0Value", false}, {"", false}};
  for (const auto& row : rows) {
    EXPECT_EQ(Actions::IsCustomFieldProperty(row.name), row.custom) << row.name;
  }
}

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

TEST_F(TagItemTest, NothingIsTakenOutOfTheCategoriesAndEmptyOnEmptyStaysEmpty) {
  Set("TagProjectToCategories", "-1");
  Connect();
  auto item = Appointment("Planning");
  item->SetField("Categories", "Alpha");
  Tag(*item, "ProjectValue", "Alpha");
  EXPECT_EQ(Categories(*item), "Alpha,Alpha");
  auto empty = Appointment("Empty");
  Tag(*empty, "ProjectValue", "");
  EXPECT_EQ(Categories(*empty), "");
}

TEST_F(TagItemTest, AnOccurrenceGetsValueAndDatesButNoCategory) {
  Set("TagProjectToCategories", "-1");
  Set("UpdateStartDateWithProjectStartDate", "-1");
  Connect();
  auto series = host().AddRecurringAppointment("Weekly", ComposeDate({2026, 3, 2, 9, 0, 0}),
                                               ComposeDate({2026, 3, 2, 10, 0, 0}));
  auto occurrence = host().Occurrence(*series, ComposeDate({2026, 3, 9, 9, 0, 0}));
  EXPECT_TRUE(Tag(*occurrence, "ProjectValue", "Alpha"));
  EXPECT_EQ(Prop(*occurrence, "ProjectValue"), "Alpha");
  EXPECT_EQ(Date(*occurrence, "Start"), DateSerial(2026, 3, 2));
  EXPECT_EQ(Categories(*occurrence), "");
  // The series itself is no occurrence: it gets its category.
  Tag(*series, "ProjectValue", "Beta");
  EXPECT_EQ(Categories(*series), "Beta");
}

// Only a value the property refuses is reported; it ends the tag unsaved.
TEST_F(TagItemTest, RefusalsArePassedOverButARefusedValueIsReported) {
  Set("TagProjectToCategories", "-1");
  Connect();
  auto gone = Appointment("Gone");
  const Object handle = gone->AsObject();
  gone->Delete();
  EXPECT_TRUE(Actions::TagProjectToItem(s(), handle, "ProjectValue", "Alpha", true));
  EXPECT_TRUE(gone->UserProperties().list().empty());
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
