#include "reporting/report_rules.h"

#include <gtest/gtest.h>

#include "unit/reporting/report_fixture.h"

namespace qvx {
namespace {

using ReportRules = testing::ReportTest;

TEST_F(ReportRules, OnlyAPrivateItemWithoutAllowPrivateIsRefused) {
  auto item = Appointment("A");
  for (int32_t sensitivity : {0, 1, 2, 3}) {
    for (int16_t allow : {int16_t{0}, int16_t{1}, int16_t{-1}}) {
      item->SetField("Sensitivity", sensitivity);
      t.settings().AllowPrivate = allow;
      EXPECT_EQ(IsPrivateAllowed(t.s, item->AsObject()), !(sensitivity == 2 && allow == 0))
          << sensitivity << " " << allow;
    }
  }
}

TEST_F(ReportRules, RecurrenceIsJudgedOnTheItemAsSuch) {
  auto plain = Appointment("Plain");
  auto occurrence = Occurrence("Weekly");
  auto series = std::dynamic_pointer_cast<sim::SimAppointment>(occurrence->Parent());
  auto task = Task("Task");
  for (int16_t allow : {int16_t{0}, int16_t{-1}}) {
    t.settings().AllowRecurring = allow;
    EXPECT_TRUE(IsRecurringAllowed(t.s, plain->AsObject()));
    EXPECT_TRUE(IsRecurringAllowed(t.s, task->AsObject()));
    EXPECT_EQ(IsRecurringAllowed(t.s, occurrence->AsObject()), allow != 0);
    EXPECT_EQ(IsRecurringAllowed(t.s, series->AsObject()), allow != 0);
  }
}

struct MandatoryCase {
  int16_t cMySettings::*active;  // null for project and activity
  int16_t cMySettings::*mandatory;
  std::string property;
  std::string line;
};

std::vector<MandatoryCase> MandatoryCases() {
  using c = cMySettings;
  std::vector<MandatoryCase> cases = {{nullptr, &c::ProjectMandatory, "ProjectValue",
                                       "\t- Project field is mandatory for reporting!"},
                                      {nullptr, &c::ActivityMandatory, "ActivityValue",
                                       "\t- Activity field is mandatory for reporting!"}};
  int16_t c::*active[] = {&c::CustomList1Active,  &c::CustomList2Active,  &c::CustomList3Active,
                          &c::CustomList4Active,  &c::CustomField5Active, &c::CustomField6Active,
                          &c::CustomField7Active, &c::CustomField8Active, &c::CustomField9Active,
                          &c::CustomField10Active};
  int16_t c::*mandatory[] = {&c::CustomList1Mandatory,  &c::CustomList2Mandatory,
                             &c::CustomList3Mandatory,  &c::CustomList4Mandatory,
                             &c::CustomField5Mandatory, &c::CustomField6Mandatory,
                             &c::CustomField7Mandatory, &c::CustomField8Mandatory,
                             &c::CustomField9Mandatory, &c::CustomField10Mandatory};
  for (int n = 1; n <= 10; ++n) {
    const std::string number = std::to_string(n);
    cases.push_back({active[n - 1], mandatory[n - 1], "Field" + number + "Value",
                     "\t- Custom Field " + number + " is mandatory for reporting!"});
  }
  return cases;
}

TEST_F(ReportRules, EachMandatoryTestNeedsItsSwitchesAndAValue) {
  for (const MandatoryCase& m : MandatoryCases()) {
    auto item = Appointment("A");
    cMySettings& c = t.settings();
    c.*m.mandatory = -1;
    if (m.active != nullptr) {
      // Mandatory alone is not enough for a custom field: it must be in use.
      EXPECT_EQ(AllMandatoryFieldsFilled(t.s, item->AsObject()), "") << m.property;
      c.*m.active = 1;
    }
    EXPECT_EQ(AllMandatoryFieldsFilled(t.s, item->AsObject()), m.line) << m.property;
    Tag(*item, m.property, "  ");  // blanks are no value
    EXPECT_EQ(AllMandatoryFieldsFilled(t.s, item->AsObject()), m.line) << m.property;
    Tag(*item, m.property, "x");
    EXPECT_EQ(AllMandatoryFieldsFilled(t.s, item->AsObject()), "") << m.property;
    c.*m.mandatory = 0;
    if (m.active != nullptr) c.*m.active = 0;
  }
  EXPECT_TRUE(t.Reports().empty());
}

TEST_F(ReportRules, AllMissingFieldsAreListedInTheirFixedOrder) {
  cMySettings& c = t.settings();
  std::string expected;
  for (const MandatoryCase& m : MandatoryCases()) {
    c.*m.mandatory = 1;
    if (m.active != nullptr) c.*m.active = 1;
    expected += (expected.empty() ? "" : "\r\n") + m.line;
  }
  EXPECT_EQ(AllMandatoryFieldsFilled(t.s, Appointment("A")->AsObject()), expected);
}

TEST_F(ReportRules, LabelsComeFromTheSettingsAndABlankNameFallsBack) {
  cMySettings& c = t.settings();
  c.ProjectTitle = "Job";
  c.ActivityTitle = "Phase";
  c.CustomList2Name = "Cost Centre";
  c.CustomField7Name = "   ";
  c.ProjectMandatory = c.ActivityMandatory = 1;
  c.CustomList2Active = c.CustomList2Mandatory = 1;
  c.CustomField7Active = c.CustomField7Mandatory = 1;
  EXPECT_EQ(AllMandatoryFieldsFilled(t.s, Task("T")->AsObject()),
            "\t- Job field is mandatory for reporting!\r\n"
            "\t- Phase field is mandatory for reporting!\r\n"
            "\t- Cost Centre is mandatory for reporting!\r\n"
            "\t- Custom Field 7 is mandatory for reporting!");
}

TEST_F(ReportRules, ADefaultStandsInWithoutBeingWritten) {
  cMySettings& c = t.settings();
  c.ProjectMandatory = c.ActivityMandatory = 1;
  c.CustomList1Active = c.CustomList1Mandatory = 1;
  c.CustomField5Active = c.CustomField5Mandatory = 1;  // the free fields have no default
  c.EnableDefaultValueForProjectTask = -1;
  c.DefaultValueForProject = "Internal";
  c.DefaultValueForTask = " ";  // a default of blanks is no value either
  c.EnableDefaultValueForCustomField1 = -1;
  c.DefaultValueCustomField1 = "Travel";
  auto item = Appointment("A");
  EXPECT_EQ(AllMandatoryFieldsFilled(t.s, item->AsObject()),
            "\t- Activity field is mandatory for reporting!\r\n"
            "\t- Custom Field 5 is mandatory for reporting!");
  EXPECT_EQ(item->UserProperties().Find("ProjectValue"), nullptr);
  EXPECT_EQ(item->UserProperties().Find("Field1Value"), nullptr);
  EXPECT_EQ(item->saveCount(), 0);
}

TEST_F(ReportRules, WithoutSettingsTheTestIsReportedAndGivesNothing) {
  t.s.main.objMySettings.reset();
  EXPECT_EQ(AllMandatoryFieldsFilled(t.s, Appointment("A")->AsObject()), "");
  EXPECT_TRUE(t.Reported("Main.AllMandatoryFieldsFilled"));
}

}  // namespace
}  // namespace qvx
