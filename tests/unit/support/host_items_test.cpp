#include "support/host_items.h"

#include "core/dates.h"
#include "support_fixture.h"

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
      {Integer, none, Variant(int32_t{0}), zero},
      {Integer, none, Variant("x"), zero},
      {Integer, none, none, zero},
      {Integer, Variant(int32_t{42}), none, Variant(int32_t{42})},
      {Integer, Variant("5"), none, Variant("5")},
      {Integer, Variant("abc"), Variant("9"), zero},
      {Currency, none, Variant("3"), zero},
      {Currency, Variant::Null(), none, zero},
      {Currency, Variant(2.5), none, Variant(qvx::Currency{25000})},
      {Date, none, day, noDate},
      {Date, day, none, day},
      {Date, Variant("2026-01-02"), none, day},
      {Date, Variant("soon"), none, noDate},
      {String, none, Variant("x"), Variant("x")},
      {String, none, none, Variant("")},
      {String, Variant(""), Variant("x"), Variant("x")},
      {String, Variant("P1"), Variant("x"), Variant("P1")},
      {String, Variant(int32_t{12}), none, Variant("12")},
      {Boolean, none, Variant(int32_t{-1}), Variant(true)},
      {Boolean, none, none, Variant(false)},
      {Boolean, none, Variant("yes"), none},
      {Boolean, Variant(true), none, Variant(true)},
      {Boolean, Variant(int32_t{0}), Variant(int32_t{-1}), Variant(false)},
  };
  for (size_t i = 0; i < std::size(rows); ++i) {
    FakeItem item;
    if (!rows[i].value.IsEmpty()) item.userProperties.emplace_back("ProjectValue", rows[i].value);
    const Variant got = GetUserDefinedFieldValue(s, item.AsObject(), "projectvalue", rows[i].type,
                                                 rows[i].defaultValue);
    EXPECT_EQ(got, rows[i].expected) << "row " << i << ": got " << got.ToText();
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

TEST_F(HostItems, UserNameFromMailboxElseTheSystemsUser) {
  const std::pair<const char*, const char*> rows[] = {
      {"Mailbox - Jane Doe", "Jane Doe"}, {"MAILBOX - Jane Doe  ", "Jane Doe"},
      {"Doe, Jane", "Doe, Jane"},         {"jane@example.invalid", "jane@example.invalid"},
      {"Personal Folders", ""},           {" - ", ""},
  };
  ConnectHost();
  for (const auto& [mailbox, user] : rows) {
    outlook.mailboxName = mailbox;
    EXPECT_EQ(GetUserNameFromMailbox(s), user) << mailbox;
    EXPECT_EQ(GetCurrentUserName(s), *user != 0 ? user : "winuser") << mailbox;
  }
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
