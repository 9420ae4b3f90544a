// Which items may be reported; the mandatory fields are
// tests/scenarios/report_mandatory_fields.qvx's.
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

// An occurrence by AllowRecurring: report_withdraw.qvx; the series itself too.
TEST_F(ReportRules, TheSeriesIsRecurringAsItsOccurrences) {
  auto occurrence = Occurrence("Weekly");
  auto series = std::dynamic_pointer_cast<sim::SimAppointment>(occurrence->Parent());
  t.settings().AllowRecurring = 0;
  EXPECT_FALSE(IsRecurringAllowed(t.s, series->AsObject()));
  EXPECT_TRUE(IsRecurringAllowed(t.s, Task("Task")->AsObject()));
  t.settings().AllowRecurring = -1;
  EXPECT_TRUE(IsRecurringAllowed(t.s, series->AsObject()));
}

TEST_F(ReportRules, WithoutSettingsTheMandatoryTestIsReportedAndGivesNothing) {
  t.s.main.objMySettings.reset();
  EXPECT_EQ(AllMandatoryFieldsFilled(t.s, Appointment("A")->AsObject()), "");
  EXPECT_TRUE(t.Reported("Main.AllMandatoryFieldsFilled"));
}

}  // namespace
}  // namespace qvx
