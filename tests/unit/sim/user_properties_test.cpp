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
  Object props = world.AddAppointment("Tagged", DateSerial(2026, 3, 2), DateSerial(2026, 3, 3))
                     ->AsObject()
                     .Get("UserProperties")
                     .ToObject();
};

TEST_F(SimUserPropertiesTest, ValuesTakeThePropertyType) {
  const struct {
    const char* name;
    int32_t type;
    Variant first;   // the value of a new property
    Variant put;     // what the add-in writes
    Variant stored;  // what it reads back
  } rows[] = {
      {"ProjectValue", host::olText, Variant(""), Variant(int32_t{42}), Variant("42")},
      {"ReportedDate", host::olDateTime, Variant(kNoneDate), Variant("2026-03-04"),
       Variant(DateSerial(2026, 3, 4))},
      {"Reported", host::olYesNo, Variant(false), Variant(int16_t{-1}), Variant(true)},
  };
  for (const auto& row : rows) {
    const Object p = props.Call("Add", {Variant(row.name), Variant(row.type)}).ToObject();
    EXPECT_EQ(p.Get("Value"), row.first) << row.name;
    p.Put("Value", row.put);
    EXPECT_EQ(p.Get("Value"), row.stored) << row.name;
  }
  const Object date = props.Call("Find", {Variant("reporteddate")}).ToObject();
  EXPECT_EQ(FailureOf([&] { date.Put("Value", Variant("many")); }).number(), err::kTypeMismatch);
}

TEST_F(SimUserPropertiesTest, LookupIsCaseBlindAndReAddingNeedsTheSameType) {
  EXPECT_TRUE(props.Call("Find", {Variant("ProjectValue")}).ToObject().IsNothing());
  EXPECT_TRUE(props.Call("Item", {Variant("ProjectValue")}).ToObject().IsNothing());
  const Object added =
      props.Call("Add", {Variant("ProjectValue"), Variant(host::olText), Variant(true)}).ToObject();
  EXPECT_TRUE(props.Call("Find", {Variant("PROJECTVALUE")}).ToObject().Is(added));
  EXPECT_TRUE(props.Call("Item", {Variant("projectvalue")}).ToObject().Is(added));
  EXPECT_TRUE(
      props.Call("Add", {Variant("projectValue"), Variant(host::olText)}).ToObject().Is(added));
  EXPECT_THROW(props.Call("Add", {Variant("ProjectValue"), Variant(host::olYesNo)}), Failure);
}

TEST_F(SimUserPropertiesTest, AddToFolderFieldsEntersTheFolderList) {
  props.Call("Add", {Variant("Scratch"), Variant(host::olText), Variant(false)});
  props.Call("Add", {Variant("Reported"), Variant(host::olYesNo)});  // True by default
  EXPECT_TRUE(world.Calendar()->HasField("reported"));
  EXPECT_FALSE(world.Calendar()->HasField("Scratch"));
}

}  // namespace
}  // namespace qvx::sim
