// The dates a tag brings along, by settings and item class.
#include "reporting/tag_dates.h"

#include "reporting/tag_item.h"
#include "sim/faults.h"
#include "sim/mail_item.h"
#include "unit/reporting/tagging_fixture.h"

namespace qvx::testing {
namespace {

constexpr DateValue kUnchanged{-1.0};

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
  void Tag(sim::SimItem& item, std::string_view property, std::string_view value) {
    Actions::TagProjectToItem(s(), item.AsObject(), property, value, true);
  }
  // The field's date now, or kUnchanged if it still holds `before`.
  static DateValue Now(sim::SimItem& item, std::string_view field, DateValue before) {
    const DateValue now = Date(item, field);
    return now == before ? kUnchanged : now;
  }
};

TEST(IsUsableDate, OnlyTheEmptyAndTheNoneYearsAreUnusable) {
  EXPECT_FALSE(Actions::IsUsableDate(kEmptyDate));
  EXPECT_FALSE(Actions::IsUsableDate(kNoneDate));
  EXPECT_FALSE(Actions::IsUsableDate(DateSerial(4501, 7, 1)));
  EXPECT_FALSE(Actions::IsUsableDate(DateSerial(1899, 1, 1)));
  EXPECT_TRUE(Actions::IsUsableDate(DateSerial(1900, 1, 1)));
  EXPECT_TRUE(Actions::IsUsableDate(DateSerial(1, 1, 1)));  // only the text form drops year 1
  EXPECT_TRUE(Actions::IsUsableDate(DateSerial(2026, 3, 2)));
}

TEST_F(TagDatesTest, ProjectDatesOnAnAppointment) {
  const struct {
    const char* what;
    std::string_view project;
    DateSettings settings;
    DateValue start;
    DateValue end;
  } rows[] = {
      {"start only",
       "Alpha",
       {.start = -1},
       DateSerial(2026, 3, 2),
       ComposeDate({2026, 3, 2, 1, 0, 0})},
      {"both end settings", "Alpha", {.appt = -1, .task = -1}, kUnchanged, DateSerial(2026, 6, 30)},
      {"appointment setting alone", "Alpha", {.appt = -1}, kUnchanged, kUnchanged},
      {"task setting alone", "Alpha", {.task = -1}, kUnchanged, kUnchanged},
      {"start and end",
       "Alpha",
       {.start = -1, .appt = -1},
       DateSerial(2026, 3, 2),
       DateSerial(2026, 6, 30)},
      {"end from the activity",
       "Alpha",
       {.appt = -1, .task = -1, .apptFrom = 1},
       kUnchanged,
       kUnchanged},
      {"end from the task choice",
       "Alpha",
       {.start = -1, .appt = -1, .taskFrom = 1},
       DateSerial(2026, 3, 2),
       DateSerial(2026, 6, 30)},
      {"no dates", "Beta", {.start = -1, .appt = -1, .task = -1}, kUnchanged, kUnchanged},
      {"none and empty years",
       "Gamma",
       {.start = -1, .appt = -1, .task = -1},
       kUnchanged,
       kUnchanged},
      {"not in the catalogue",
       "Delta",
       {.start = -1, .appt = -1, .task = -1},
       kUnchanged,
       kUnchanged},
      {"case of the name",
       "ALPHA",
       {.start = -1},
       DateSerial(2026, 3, 2),
       ComposeDate({2026, 3, 2, 1, 0, 0})},
  };
  for (const auto& row : rows) {
    Use(row.settings);
    auto item = Appointment("Planning");
    const DateValue start = Date(*item, "Start");
    const DateValue end = Date(*item, "End");
    Tag(*item, "ProjectValue", row.project);
    EXPECT_EQ(Prop(*item, "ProjectValue"), row.project) << row.what;
    EXPECT_EQ(Now(*item, "Start", start), row.start) << row.what;
    // Putting Start keeps the duration: the one-hour meeting moves along.
    EXPECT_EQ(Now(*item, "End", end), row.end) << row.what;
  }
  EXPECT_TRUE(Reports().empty());
}

TEST_F(TagDatesTest, ProjectDatesOnATask) {
  const struct {
    const char* what;
    DateSettings settings;
    DateValue startDate;
    DateValue dueDate;
  } rows[] = {
      {"start only", {.start = -1}, DateSerial(2026, 3, 2), kUnchanged},
      {"both end settings", {.appt = -1, .task = -1}, kUnchanged, DateSerial(2026, 6, 30)},
      {"start and due", {.start = -1, .task = -1}, DateSerial(2026, 3, 2), DateSerial(2026, 6, 30)},
      {"due from the activity",
       {.start = -1, .task = -1, .taskFrom = 1},
       DateSerial(2026, 3, 2),
       kUnchanged},
      {"appointment choice",
       {.start = -1, .appt = -1, .apptFrom = 0, .taskFrom = 1},
       DateSerial(2026, 3, 2),
       kUnchanged},
  };
  for (const auto& row : rows) {
    Use(row.settings);
    auto task = Task("Write");
    Tag(*task, "ProjectValue", "Alpha");
    EXPECT_EQ(Now(*task, "StartDate", kNoneDate), row.startDate) << row.what;
    EXPECT_EQ(Now(*task, "DueDate", kNoneDate), row.dueDate) << row.what;
  }
}

TEST_F(TagDatesTest, ActivityDueDate) {
  const struct {
    const char* what;
    bool task;
    std::string_view project;  // "" for an item without a project
    std::string_view activity;
    DateSettings settings;
    DateValue end;
  } rows[] = {
      {"appointment end",
       false,
       "Alpha",
       "Design",
       {.appt = -1, .apptFrom = 1},
       DateSerial(2026, 4, 15)},
      {"appointment end from the project",
       false,
       "Alpha",
       "Design",
       {.appt = -1, .apptFrom = 0},
       kUnchanged},
      {"task setting on an appointment",
       false,
       "Alpha",
       "Design",
       {.task = -1, .apptFrom = 1},
       kUnchanged},
      {"task due", true, "Alpha", "Design", {.task = -1, .taskFrom = 1}, DateSerial(2026, 4, 15)},
      {"task due from the project", true, "Alpha", "Design", {.task = -1}, kUnchanged},
      {"activity without a date",
       false,
       "Alpha",
       "Review",
       {.appt = -1, .apptFrom = 1},
       kUnchanged},
      {"activity of another project",
       false,
       "Alpha",
       "Build",
       {.appt = -1, .apptFrom = 1},
       kUnchanged},
      {"project not in the catalogue",
       false,
       "Delta",
       "Design",
       {.appt = -1, .apptFrom = 1},
       kUnchanged},
      {"no project on the item", false, "", "Design", {.appt = -1, .apptFrom = 1}, kUnchanged},
      {"project with blanks",
       false,
       "  Beta ",
       "build",
       {.appt = -1, .apptFrom = 1},
       DateSerial(2026, 5, 20)},
  };
  for (const auto& row : rows) {
    Use(DateSettings{});
    std::shared_ptr<sim::SimItem> item;
    if (row.task) {
      item = Task("Write");
    } else {
      item = Appointment("Planning");
    }
    if (!row.project.empty()) Tag(*item, "ProjectValue", row.project);
    Use(row.settings);
    const std::string_view field = row.task ? "DueDate" : "End";
    const DateValue before = Date(*item, field);
    Tag(*item, "ActivityValue", row.activity);
    EXPECT_EQ(Prop(*item, "ActivityValue"), row.activity) << row.what;
    EXPECT_EQ(Now(*item, field, before), row.end) << row.what;
  }
  EXPECT_TRUE(Reports().empty());
}

TEST_F(TagDatesTest, ClearingTheProjectLeavesTheDatesAlone) {
  Use({.start = -1, .appt = -1, .task = -1});
  auto item = Appointment("Planning");
  const DateValue start = Date(*item, "Start");
  const DateValue end = Date(*item, "End");
  Tag(*item, "ProjectValue", "");
  Tag(*item, "ActivityValue", "");
  EXPECT_EQ(Date(*item, "Start"), start);
  EXPECT_EQ(Date(*item, "End"), end);
}

TEST_F(TagDatesTest, AssignDateToItemByClass) {
  const DateValue date = DateSerial(2026, 8, 1);
  auto appointment = Appointment("Planning");
  Actions::AssignDateToItem(s(), appointment->AsObject(), date, true);
  EXPECT_EQ(Date(*appointment, "Start"), date);
  Actions::AssignDateToItem(s(), appointment->AsObject(), DateSerial(2026, 8, 3), false);
  EXPECT_EQ(Date(*appointment, "End"), DateSerial(2026, 8, 3));

  auto exception = Appointment("Moved");
  exception->SetField("MessageClass", "IPM.OLE.CLASS.{00061055-0000-0000-C000-000000000046}");
  Actions::AssignDateToItem(s(), exception->AsObject(), date, true);
  EXPECT_EQ(Date(*exception, "Start"), date);

  auto task = Task("Write");
  task->SetField("MessageClass", "ipm.task.custom");
  Actions::AssignDateToItem(s(), task->AsObject(), date, true);
  Actions::AssignDateToItem(s(), task->AsObject(), DateSerial(2026, 8, 4), false);
  EXPECT_EQ(Date(*task, "StartDate"), date);
  EXPECT_EQ(Date(*task, "DueDate"), DateSerial(2026, 8, 4));

  auto mail = host().AddMail("Hello");
  Actions::AssignDateToItem(s(), mail->AsObject(), date, true);
  EXPECT_FALSE(mail->Field("Start").IsDate());
  EXPECT_TRUE(Reports().empty());
}

TEST_F(TagDatesTest, AssignDateToItemIgnoresRefusals) {
  auto appointment = Appointment("Planning");
  const DateValue start = Date(*appointment, "Start");
  appointment->FailMember("Start", sim::hresult::kFail, "read-only");
  Actions::AssignDateToItem(s(), appointment->AsObject(), DateSerial(2026, 8, 1), true);
  EXPECT_EQ(Date(*appointment, "Start"), start);
  auto task = Task("Write");
  task->FailMember("MessageClass", sim::hresult::kFail, "gone");
  Actions::AssignDateToItem(s(), task->AsObject(), DateSerial(2026, 8, 1), true);
  EXPECT_EQ(Date(*task, "StartDate"), kNoneDate);
  EXPECT_TRUE(Reports().empty());
  EXPECT_FALSE(s().err.pending());
}

}  // namespace
}  // namespace qvx::testing
