// User properties of simulated items: typed values, lookup, folder fields.
#include <gtest/gtest.h>

#include "core/dates.h"
#include "sim/folder.h"
#include "sim/item_classes.h"
#include "sim/outlook.h"
#include "sim/user_properties.h"
#include "unit/sim/sim_test_util.h"

namespace qvx::sim {
namespace {

using testing::FailureOf;

class SimUserPropertiesTest : public ::testing::Test {
 protected:
  Outlook world;
  std::shared_ptr<SimAppointment> item =
      world.AddAppointment("Tagged", DateSerial(2026, 3, 2), DateSerial(2026, 3, 3));
  Object props = item->AsObject().Get("UserProperties").ToObject();
};

TEST_F(SimUserPropertiesTest, ValuesTakeThePropertyType) {
  const struct {
    const char* name;
    int32_t type;
    Variant first;   // the value of a new property
    Variant put;     // what the add-in writes
    Variant stored;  // what it reads back
  } rows[] = {
      {"ProjectValue", kOlText, Variant(""), Variant(int32_t{42}), Variant("42")},
      {"Hours", kOlNumber, Variant(0.0), Variant("2.5"), Variant(2.5)},
      {"ReportedDate", kOlDateTime, Variant(kNoneDate), Variant("2026-03-04"),
       Variant(DateSerial(2026, 3, 4))},
      {"Reported", kOlYesNo, Variant(false), Variant(int16_t{-1}), Variant(true)},
      {"Units", kOlInteger, Variant(int32_t{0}), Variant(2.5), Variant(int32_t{2})},
      {"Rate", kOlCurrency, Variant(Currency{}), Variant(1.25), Variant(Currency{12500})},
  };
  for (const auto& row : rows) {
    const Object p = props.Call("Add", {Variant(row.name), Variant(row.type)}).ToObject();
    EXPECT_EQ(p.TypeName(), "UserProperty");
    EXPECT_EQ(p.Get("Type").ToLong(), row.type);
    EXPECT_EQ(p.Get("Value"), row.first) << row.name;
    p.Put("Value", row.put);
    EXPECT_EQ(p.Get("Value"), row.stored) << row.name;
  }
  const Object hours = props.Call("Find", {Variant("hours")}).ToObject();
  EXPECT_EQ(FailureOf([&] { hours.Put("Value", Variant("many")); }).number(), err::kTypeMismatch);
}

TEST_F(SimUserPropertiesTest, FindAndItemAreCaseBlindAndGiveNothingForMissingNames) {
  EXPECT_TRUE(props.Call("Find", {Variant("ProjectValue")}).ToObject().IsNothing());
  EXPECT_TRUE(props.Call("Item", {Variant("ProjectValue")}).ToObject().IsNothing());
  const Object added =
      props.Call("Add", {Variant("ProjectValue"), Variant(kOlText), Variant(true)}).ToObject();
  EXPECT_TRUE(props.Call("Find", {Variant("PROJECTVALUE")}).ToObject().Is(added));
  EXPECT_TRUE(props.Call("Item", {Variant("projectvalue")}).ToObject().Is(added));
  EXPECT_TRUE(props.Call("Item", {Variant(int32_t{1})}).ToObject().Is(added));
  EXPECT_EQ(FailureOf([&] { props.Call("Item", {Variant(int32_t{2})}); }).number(),
            hresult::kIndexOutOfBounds);
  EXPECT_EQ(props.Get("Count").ToLong(), 1);
  // Adding it again with the same type gives the same property; another type fails.
  EXPECT_TRUE(props.Call("Add", {Variant("projectValue"), Variant(kOlText)}).ToObject().Is(added));
  EXPECT_THROW(props.Call("Add", {Variant("ProjectValue"), Variant(kOlYesNo)}), Failure);
  EXPECT_EQ(FailureOf([&] { props.Call("Add", {Variant("x")}); }).number(), 449);
}

TEST_F(SimUserPropertiesTest, AddToFolderFieldsEntersTheFolderList) {
  props.Call("Add", {Variant("ProjectValue"), Variant(kOlText), Variant(true)});
  props.Call("Add", {Variant("Scratch"), Variant(kOlText), Variant(false)});
  props.Call("Add", {Variant("Reported"), Variant(kOlYesNo)});  // True by default
  auto calendar = world.Calendar();
  EXPECT_TRUE(calendar->HasField("projectvalue"));
  EXPECT_TRUE(calendar->HasField("Reported"));
  EXPECT_FALSE(calendar->HasField("Scratch"));
  ASSERT_EQ(calendar->fields().size(), 2u);
  EXPECT_EQ(calendar->fields()[1].type, kOlYesNo);
}

TEST_F(SimUserPropertiesTest, TheCompanionsWritesArriveAsItemChanges) {
  int changes = 0;
  Subscription sub = world.Calendar()->AsObject().Get("Items").ToObject().Subscribe(
      "ItemChange", [&](EventArgs&) { ++changes; });
  world.ChangeUserProperty(*item, "ReportedID", kOlText, Variant("R-17"));
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(props.Call("Find", {Variant("ReportedID")}).ToObject().Get("Value").ToText(), "R-17");
  std::vector<std::string> names;
  for (const Variant& v : props.Enumerate()) names.push_back(v.ToObject().Get("Name").ToText());
  EXPECT_EQ(names, (std::vector<std::string>{"ReportedID"}));
  props.Call("Find", {Variant("ReportedID")}).ToObject().Call("Delete");
  EXPECT_EQ(props.Get("Count").ToLong(), 0);
}

}  // namespace
}  // namespace qvx::sim
