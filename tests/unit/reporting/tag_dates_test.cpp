// The dates a tag brings along: which dates are usable, and where a date
// goes by the item's class. Which dates come by which settings is
// tests/scenarios/tag_dates.qvx's.
#include "reporting/tag_dates.h"

#include "sim/faults.h"
#include "sim/mail_item.h"
#include "unit/reporting/tagging_fixture.h"

namespace qvx::testing {
namespace {

DateValue D(int month, int day) {
  return DateSerial(2026, month, day);
}

class TagDatesTest : public TaggingTest {
 protected:
  void SetUp() override { Connect(); }
};

TEST(IsUsableDate, OnlyTheEmptyAndTheNoneYearsAreUnusable) {
  for (DateValue date : {kEmptyDate, kNoneDate, DateSerial(4501, 7, 1), DateSerial(1899, 1, 1)}) {
    EXPECT_FALSE(Actions::IsUsableDate(date)) << DateToText(date);
  }
  // Only the text form drops year 1.
  for (DateValue date : {DateSerial(1900, 1, 1), DateSerial(1, 1, 1), D(3, 2)}) {
    EXPECT_TRUE(Actions::IsUsableDate(date)) << DateToText(date);
  }
}

// Refusals of the host are passed over quietly.
TEST_F(TagDatesTest, AssignDateToItemFindsTheClassInTheMessageClassAndIgnoresRefusals) {
  auto exception = Appointment("Moved");
  exception->SetField("MessageClass", "IPM.OLE.CLASS.{00061055-0000-0000-C000-000000000046}");
  Actions::AssignDateToItem(s(), exception->AsObject(), D(8, 1), true);
  EXPECT_EQ(Date(*exception, "Start"), D(8, 1));
  auto task = Task("Write");
  task->SetField("MessageClass", "ipm.task.custom");
  Actions::AssignDateToItem(s(), task->AsObject(), D(8, 4), false);
  EXPECT_EQ(Date(*task, "DueDate"), D(8, 4));
  auto mail = host().AddMail("Hello");
  Actions::AssignDateToItem(s(), mail->AsObject(), D(8, 1), true);
  EXPECT_FALSE(mail->Field("Start").IsDate());

  auto appointment = Appointment("Planning");
  const DateValue start = Date(*appointment, "Start");
  appointment->FailMember("Start", sim::hresult::kFail, "read-only");
  Actions::AssignDateToItem(s(), appointment->AsObject(), D(8, 1), true);
  EXPECT_EQ(Date(*appointment, "Start"), start);
  auto refusing = Task("Write");
  refusing->FailMember("MessageClass", sim::hresult::kFail, "gone");
  Actions::AssignDateToItem(s(), refusing->AsObject(), D(8, 1), true);
  EXPECT_EQ(Date(*refusing, "StartDate"), kNoneDate);
  EXPECT_TRUE(Reports().empty());
  EXPECT_FALSE(s().err.pending());
}

}  // namespace
}  // namespace qvx::testing
