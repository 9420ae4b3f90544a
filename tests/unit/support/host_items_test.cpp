#include "support/host_items.h"

#include "core/dates.h"
#include "core/host_constants.h"
#include "sim/appointment.h"
#include "sim/explorer.h"
#include "sim/mail_item.h"
#include "sim/task_item.h"
#include "sim/user_properties.h"
#include "support_fixture.h"
#include "unit/support/failure_report.h"

namespace qvx::testing {
namespace {

using HostItems = SupportTest;

// The item's "ProjectValue" holds `value` (no such property when Empty) and
// is asked for by another case of its name.
TEST_F(HostItems, GetUserDefinedFieldValueByTypeSelector) {
  using enum VarType;
  const Variant none, zero(int16_t{0}), day(DateSerial(2026, 1, 2)), noDate(kEmptyDate);
  const struct {
    VarType type;
    Variant value, defaultValue, expected;
  } rows[] = {
      {Integer, none, Variant("7"), Variant(int16_t{7})},
      {Integer, none, Variant("x"), zero},
      {Integer, Variant(int32_t{42}), none, Variant(int32_t{42})},
      {Integer, Variant("5"), none, Variant("5")},
      {Integer, Variant("abc"), Variant("9"), zero},
      {Currency, none, Variant("3"), zero},
      {Currency, Variant::Null(), none, zero},
      {Currency, Variant(2.5), none, Variant(qvx::Currency{25000})},
      {Date, none, day, noDate},
      {Date, Variant("2026-01-02"), none, day},
      {Date, Variant("soon"), none, noDate},
      {String, none, Variant("x"), Variant("x")},
      {String, Variant(""), Variant("x"), Variant("x")},
      {String, Variant(int32_t{12}), none, Variant("12")},
      {Boolean, none, Variant(int32_t{-1}), Variant(true)},
      {Boolean, none, Variant("yes"), none},
      {Boolean, Variant(int32_t{0}), Variant(int32_t{-1}), Variant(false)},
  };
  for (size_t i = 0; i < std::size(rows); ++i) {
    auto item = host.AddAppointment("A", DateSerial(2026, 1, 2), DateSerial(2026, 1, 2));
    if (!rows[i].value.IsEmpty()) {
      // A combination field: the host doesn't convert it, so it holds any value given.
      item->UserProperties().Set("ProjectValue", host::olCombination, rows[i].value);
    }
    const Variant got = GetUserDefinedFieldValue(s, item->AsObject(), "projectvalue", rows[i].type,
                                                 rows[i].defaultValue);
    EXPECT_EQ(got, rows[i].expected) << "row " << i << ": got " << got.ToText();
  }
  EXPECT_TRUE(ui.Forms().empty());
}

TEST_F(HostItems, AGoneItemReadsAsOneWithoutTheProperty) {
  auto item = host.AddAppointment("A", DateSerial(2026, 1, 2), DateSerial(2026, 1, 2));
  item->UserProperties().Set("ProjectValue", host::olText, Variant("P1"));
  const Object held = item->AsObject();
  item->Delete();
  EXPECT_EQ(GetUserDefinedFieldValue(s, held, "ProjectValue", VarType::String, Variant("x")),
            Variant("x"));
  EXPECT_EQ(GetUserDefinedFieldValue(s, Object(), "ProjectValue", VarType::Integer, Variant("3")),
            Variant(int16_t{3}));
  EXPECT_TRUE(ui.Forms().empty());
}

TEST_F(HostItems, AnUnconvertibleValueIsReportedAndGivesEmpty) {
  ConnectHost();
  auto item = host.AddAppointment("A", DateSerial(2026, 1, 2), DateSerial(2026, 1, 2));
  item->UserProperties().Set("Flag", host::olText, Variant("maybe"));
  EXPECT_TRUE(GetUserDefinedFieldValue(s, item->AsObject(), "Flag", VarType::Boolean).IsEmpty());
  ASSERT_EQ(ui.Forms().size(), 1u);
  EXPECT_TRUE(ReportIsTrap(ui.Forms()[0].controls[1].text, "GetUserDefinedFieldValue"));
}

TEST_F(HostItems, UserNameFromMailboxElseTheSystemsUser) {
  const std::pair<const char*, const char*> rows[] = {{"MAILBOX - Jane Doe  ", "Jane Doe"},
                                                      {"Doe, Jane", "Doe, Jane"},
                                                      {"Personal Folders", ""},
                                                      {" - ", ""}};
  ConnectHost();
  for (const auto& [mailbox, user] : rows) {
    host.SetMailboxName(mailbox);
    EXPECT_EQ(GetUserNameFromMailbox(s), user) << mailbox;
    EXPECT_EQ(GetCurrentUserName(s), *user != 0 ? user : "winuser") << mailbox;
  }
  EXPECT_EQ(GetWindowsUserName(s), "winuser");
}

TEST_F(HostItems, OccurrencesAreRecurringAppointmentsButNotTheMaster) {
  const DateValue start{DateSerial(2026, 3, 2).serial + 9.0 / 24};
  const DateValue end{start.serial + 1.0 / 24};
  auto series = host.AddRecurringAppointment("Series", start, end);
  auto occurrence = host.Occurrence(*series, start);
  auto exception = host.Occurrence(*series, DateValue{start.serial + 7});
  exception->SetField("RecurrenceState", int32_t{3});  // an occurrence moved or changed
  auto task = host.AddTask("Task");
  task->SetField("IsRecurring", true);
  task->SetField("RecurrenceState", int32_t{2});
  const std::pair<std::shared_ptr<sim::SimItem>, bool> rows[] = {
      {series, false},   {occurrence, true},
      {exception, true}, {host.AddAppointment("Single", start, end), false},
      {task, false},     {host.AddMail("Mail"), false},
  };
  for (const auto& [item, isOccurrence] : rows) {
    EXPECT_EQ(IsRecurrenceAppointmentOccurence(s, item->AsObject()), isOccurrence)
        << item->Subject() << " " << item->Field("RecurrenceState").ToText();
  }
  EXPECT_FALSE(IsRecurrenceAppointmentOccurence(s, Object()));
}

// An inspector or an explorer in front: inspector_bars.qvx.
TEST_F(HostItems, NoHostOrNoWindowIsNoInspectorInFront) {
  EXPECT_FALSE(IsActiveWindowOfInspector(s));
  ConnectHost();
  host.SetQuitOnLastWindowClose(false);
  host.Close(*host.ActiveExplorer());
  EXPECT_FALSE(IsActiveWindowOfInspector(s));
  EXPECT_TRUE(ui.Forms().empty());
}

}  // namespace
}  // namespace qvx::testing
