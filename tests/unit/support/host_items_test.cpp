#include "support/host_items.h"

#include "core/dates.h"
#include "support_fixture.h"

namespace qvx::testing {
namespace {

using HostItems = SupportTest;

struct FieldRow {
  const char* name;
  VarType type;
  bool present;
  Variant value;         // the property's Value when present
  Variant defaultValue;  // the Default argument
  Variant expected;
};

TEST_F(HostItems, GetUserDefinedFieldValueByTypeSelector) {
  const DateValue day = DateSerial(2026, 1, 2);
  const std::vector<FieldRow> rows = {
      // Integer
      {"int absent, numeric default",
       VarType::Integer,
       false,
       {},
       Variant("7"),
       Variant(int16_t{7})},
      {"int absent, zero default",
       VarType::Integer,
       false,
       {},
       Variant(int32_t{0}),
       Variant(int16_t{0})},
      {"int absent, text default", VarType::Integer, false, {}, Variant("x"), Variant(int16_t{0})},
      {"int absent, no default", VarType::Integer, false, {}, {}, Variant(int16_t{0})},
      {"int present, numeric",
       VarType::Integer,
       true,
       Variant(int32_t{42}),
       {},
       Variant(int32_t{42})},
      {"int present, numeric text", VarType::Integer, true, Variant("5"), {}, Variant("5")},
      {"int present, text", VarType::Integer, true, Variant("abc"), Variant("9"),
       Variant(int16_t{0})},
      // Currency
      {"cur absent", VarType::Currency, false, {}, Variant("3"), Variant(int16_t{0})},
      {"cur present, null", VarType::Currency, true, Variant::Null(), {}, Variant(int16_t{0})},
      {"cur present", VarType::Currency, true, Variant(2.5), {}, Variant(Currency{25000})},
      // Date
      {"date absent", VarType::Date, false, {}, Variant(day), Variant(kEmptyDate)},
      {"date present, date", VarType::Date, true, Variant(day), {}, Variant(day)},
      {"date present, date text", VarType::Date, true, Variant("2026-01-02"), {}, Variant(day)},
      {"date present, not a date", VarType::Date, true, Variant("soon"), {}, Variant(kEmptyDate)},
      // String
      {"text absent, default", VarType::String, false, {}, Variant("x"), Variant("x")},
      {"text absent, no default", VarType::String, false, {}, {}, Variant("")},
      {"text present, empty, default", VarType::String, true, Variant(""), Variant("x"),
       Variant("x")},
      {"text present, value, default", VarType::String, true, Variant("P1"), Variant("x"),
       Variant("P1")},
      {"text present, number", VarType::String, true, Variant(int32_t{12}), {}, Variant("12")},
      // Boolean
      {"bool absent, numeric default",
       VarType::Boolean,
       false,
       {},
       Variant(int32_t{-1}),
       Variant(true)},
      {"bool absent, no default", VarType::Boolean, false, {}, {}, Variant(false)},
      {"bool absent, text default", VarType::Boolean, false, {}, Variant("yes"), Variant()},
      {"bool present", VarType::Boolean, true, Variant(true), {}, Variant(true)},
      {"bool present, zero", VarType::Boolean, true, Variant(int32_t{0}), Variant(int32_t{-1}),
       Variant(false)},
  };
  for (const FieldRow& row : rows) {
    FakeItem item;
    if (row.present) item.userProperties.emplace_back("ProjectValue", row.value);
    const Variant got =
        GetUserDefinedFieldValue(s, item.AsObject(), "projectvalue", row.type, row.defaultValue);
    EXPECT_EQ(got, row.expected) << row.name << ": got " << got.ToText();
  }
  EXPECT_TRUE(ui.Forms().empty());
}

TEST_F(HostItems, AGoneItemReadsAsOneWithoutTheProperty) {
  FakeItem item;
  item.userProperties.emplace_back("ProjectValue", Variant("P1"));
  item.gone = true;
  EXPECT_EQ(
      GetUserDefinedFieldValue(s, item.AsObject(), "ProjectValue", VarType::String, Variant("x")),
      Variant("x"));
  EXPECT_EQ(GetUserDefinedFieldValue(s, Object(), "ProjectValue", VarType::Integer, Variant("3")),
            Variant(int16_t{3}));
  EXPECT_TRUE(ui.Forms().empty());
}

TEST_F(HostItems, AnUnconvertibleValueIsReportedAndGivesEmpty) {
  ConnectHost();
  FakeItem item;
  item.userProperties.emplace_back("Flag", Variant("maybe"));
  EXPECT_TRUE(GetUserDefinedFieldValue(s, item.AsObject(), "Flag", VarType::Boolean).IsEmpty());
  ASSERT_EQ(ui.Forms().size(), 1u);
  EXPECT_NE(ui.Forms()[0].controls[1].text.find("In Function: GetUserDefinedFieldValue\r\n"),
            std::string::npos);
}

TEST_F(HostItems, UserNameFromMailbox) {
  const std::pair<const char*, const char*> rows[] = {
      {"Mailbox - Jane Doe", "Jane Doe"}, {"MAILBOX - Jane Doe  ", "Jane Doe"},
      {"Doe, Jane", "Doe, Jane"},         {"jane@example.invalid", "jane@example.invalid"},
      {"Personal Folders", ""},           {" - ", ""},
  };
  ConnectHost();
  for (const auto& [mailbox, user] : rows) {
    outlook.mailboxName = mailbox;
    EXPECT_EQ(GetUserNameFromMailbox(s), user) << mailbox;
  }
}

TEST_F(HostItems, CurrentUserFallsBackToTheSystemsUser) {
  ConnectHost();
  outlook.mailboxName = "Mailbox - Jane Doe";
  EXPECT_EQ(GetCurrentUserName(s), "Jane Doe");
  outlook.mailboxName = "Personal Folders";
  EXPECT_EQ(GetCurrentUserName(s), "winuser");
  EXPECT_EQ(GetWindowsUserName(s), "winuser");
}

TEST_F(HostItems, OccurrencesAreRecurringAppointmentsButNotTheMaster) {
  struct Row {
    const char* type;
    bool recurring;
    int32_t state;
    bool occurrence;
  };
  const Row rows[] = {{"AppointmentItem", true, 1, false}, {"AppointmentItem", true, 2, true},
                      {"AppointmentItem", true, 3, true},  {"AppointmentItem", false, 0, false},
                      {"TaskItem", true, 2, false},        {"MailItem", false, 0, false}};
  for (const Row& row : rows) {
    FakeItem item;
    item.typeName = row.type;
    item.isRecurring = row.recurring;
    item.recurrenceState = row.state;
    EXPECT_EQ(IsRecurrenceAppointmentOccurence(s, item.AsObject()), row.occurrence)
        << row.type << " " << row.state;
  }
  EXPECT_FALSE(IsRecurrenceAppointmentOccurence(s, Object()));
}

TEST_F(HostItems, ActiveWindowOfInspector) {
  EXPECT_FALSE(IsActiveWindowOfInspector(s));  // no host at all
  ConnectHost();
  outlook.activeWindowType = "Inspector";
  EXPECT_TRUE(IsActiveWindowOfInspector(s));
  outlook.activeWindowType = "Explorer";
  EXPECT_FALSE(IsActiveWindowOfInspector(s));
  outlook.activeWindowType = "";
  EXPECT_FALSE(IsActiveWindowOfInspector(s));
  EXPECT_TRUE(ui.Forms().empty());
}

}  // namespace
}  // namespace qvx::testing
