// The dates a tag brings along, by settings and item class.
#include "reporting/tag_dates.h"

#include "sim/faults.h"
#include "sim/mail_item.h"
#include "unit/reporting/tagging_fixture.h"

namespace qvx::testing {
namespace {

constexpr DateValue kSame{-1.0};

DateValue D(int month, int day) {
  return DateSerial(2026, month, day);
}

// In this order in the tables: {start, appt, task, apptFrom, taskFrom}.
struct DateSettings {
  int16_t start = 0;     // UpdateStartDateWithProjectStartDate
  int16_t appt = 0;      // UpdateAppointmentEndDateWith
  int16_t task = 0;      // UpdateTaskDueDateWith
  int16_t apptFrom = 0;  // AppointmentEndDateFrom
  int16_t taskFrom = 0;  // TaskDueDateFrom
};

class TagDatesTest : public TaggingTest {
 protected:
  void SetUp() override { Connect(); }
  void Use(const DateSettings& d) {
    cMySettings& m = settings();
    m.UpdateStartDateWithProjectStartDate = d.start;
    m.UpdateAppointmentEndDateWith = d.appt;
    m.UpdateTaskDueDateWith = d.task;
    m.AppointmentEndDateFrom = d.apptFrom;
    m.TaskDueDateFrom = d.taskFrom;
  }
  // The field's date now, or kSame if it still holds `before`.
  static DateValue Now(sim::SimItem& item, std::string_view field, DateValue before) {
    const DateValue now = Date(item, field);
    return now == before ? kSame : now;
  }
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

// A row without an activity tags the project with the settings; a row with one
// tags its project (if any) without date settings first, then the activity.
// Start and end are Start and End, or a task's StartDate and DueDate.
TEST_F(TagDatesTest, DatesByItemClassAndSettings) {
  // Putting Start keeps the duration: the one-hour meeting moves along.
  const DateValue hourLater = ComposeDate({2026, 3, 2, 1, 0, 0});
  const struct {
    const char* what;
    bool task;
    std::string_view project, activity;
    DateSettings settings;
    DateValue start, end;
  } rows[] = {
      {"both end settings", false, "Alpha", "", {0, -1, -1, 0, 0}, kSame, D(6, 30)},
      {"appointment setting alone", false, "Alpha", "", {0, -1, 0, 0, 0}, kSame, kSame},
      {"task setting alone", false, "Alpha", "", {0, 0, -1, 0, 0}, kSame, kSame},
      {"start and end", false, "Alpha", "", {-1, -1, 0, 0, 0}, D(3, 2), D(6, 30)},
      {"end from the activity", false, "Alpha", "", {0, -1, -1, 1, 0}, kSame, kSame},
      {"end from the task choice", false, "Alpha", "", {-1, -1, 0, 0, 1}, D(3, 2), D(6, 30)},
      {"none and empty years", false, "Gamma", "", {-1, -1, -1, 0, 0}, kSame, kSame},
      {"not in the catalogue", false, "Delta", "", {-1, -1, -1, 0, 0}, kSame, kSame},
      {"case of the name", false, "ALPHA", "", {-1, 0, 0, 0, 0}, D(3, 2), hourLater},
      {"task start only", true, "Alpha", "", {-1, 0, 0, 0, 0}, D(3, 2), kSame},
      {"task both end settings", true, "Alpha", "", {0, -1, -1, 0, 0}, kSame, D(6, 30)},
      {"task start and due", true, "Alpha", "", {-1, 0, -1, 0, 0}, D(3, 2), D(6, 30)},
      {"task due from the activity", true, "Alpha", "", {-1, 0, -1, 0, 1}, D(3, 2), kSame},
      {"task, appointment choice", true, "Alpha", "", {-1, -1, 0, 0, 1}, D(3, 2), kSame},
      {"appointment end", false, "Alpha", "Design", {0, -1, 0, 1, 0}, kSame, D(4, 15)},
      {"end from the project", false, "Alpha", "Design", {0, -1, 0, 0, 0}, kSame, kSame},
      {"task setting on an appointment", false, "Alpha", "Design", {0, 0, -1, 1, 0}, kSame, kSame},
      {"task due", true, "Alpha", "Design", {0, 0, -1, 0, 1}, kSame, D(4, 15)},
      {"task due from the project", true, "Alpha", "Design", {0, 0, -1, 0, 0}, kSame, kSame},
      {"activity without a date", false, "Alpha", "Review", {0, -1, 0, 1, 0}, kSame, kSame},
      {"activity of another project", false, "Alpha", "Build", {0, -1, 0, 1, 0}, kSame, kSame},
      {"project not in the catalogue", false, "Delta", "Design", {0, -1, 0, 1, 0}, kSame, kSame},
      {"no project on the item", false, "", "Design", {0, -1, 0, 1, 0}, kSame, kSame},
      {"project with blanks", false, "  Beta ", "build", {0, -1, 0, 1, 0}, kSame, D(5, 20)},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    const std::shared_ptr<sim::SimItem> item =
        row.task ? std::shared_ptr<sim::SimItem>(Task("Write")) : Appointment("Planning");
    const bool activity = !row.activity.empty();
    Use(DateSettings{});
    if (activity && !row.project.empty()) Tag(*item, "ProjectValue", row.project);
    Use(row.settings);
    const std::string_view startField = row.task ? "StartDate" : "Start";
    const std::string_view endField = row.task ? "DueDate" : "End";
    const DateValue start = Date(*item, startField);
    const DateValue end = Date(*item, endField);
    const std::string_view property = activity ? "ActivityValue" : "ProjectValue";
    const std::string_view value = activity ? row.activity : row.project;
    Tag(*item, property, value);
    EXPECT_EQ(Prop(*item, property), value);
    EXPECT_EQ(Now(*item, startField, start), row.start);
    EXPECT_EQ(Now(*item, endField, end), row.end);
  }
  EXPECT_TRUE(Reports().empty());
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
