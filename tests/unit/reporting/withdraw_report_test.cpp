#include "reporting/withdraw_report.h"

#include <gtest/gtest.h>

#include "unit/reporting/report_fixture.h"

namespace qvx {
namespace {

using WithdrawReport = testing::ReportTest;

// An item without a ReportedID: report_withdraw.qvx.
TEST_F(WithdrawReport, AnEmptyIdAGoneItemOrNoItemIsPassedOverWithNoWord) {
  auto empty = Appointment("B");
  Tag(*empty, "ReportedID", "");
  auto gone = Appointment("C");
  Tag(*gone, "ReportedID", "1");
  Select({empty});
  WithdrawReportFromDB(t.s);
  Select({});
  WithdrawReportFromDB(t.s);
  Select({gone});
  gone->Delete();
  WithdrawReportFromDB(t.s);
  EXPECT_TRUE(Boxes().empty());
  EXPECT_TRUE(Launches().empty());
  EXPECT_TRUE(t.Reports().empty());
}

TEST_F(WithdrawReport, AnOccurrenceCarriesItsStartText) {
  auto occurrence = Occurrence("Weekly");
  Tag(*occurrence, "ReportedID", "9");
  Select({occurrence});
  world.FailAt("ActiveExplorer.CurrentFolder", -2147467259, "The operation failed.");
  WithdrawReportFromDB(t.s);
  EXPECT_EQ(Arguments(), std::vector<std::string>{"2|" + Store() + "|" + occurrence->EntryId() +
                                                  ";3/9/2026 9:00:00 AM"});
}

// The first of a selection, blanks as a number, and "No": report_first_item.qvx.
TEST_F(WithdrawReport, NoStoreSendsNothing) {
  auto a = Appointment("A");
  Tag(*a, "ReportedID", "1");
  Select({a});
  a->FailMember("Parent", -2147467259, "The operation failed.");
  world.FailAt("ActiveExplorer.CurrentFolder", -2147467259, "The operation failed.");
  WithdrawReportFromDB(t.s);  // the first button, Yes
  EXPECT_EQ(Boxes().size(), 1u);
  EXPECT_TRUE(Launches().empty());
  EXPECT_TRUE(t.Reports().empty());
}

TEST_F(WithdrawReport, ARefusedEntryIdIsReportedAndNothingSent) {
  auto a = Appointment("A");
  a->FailMember("EntryID", -2147467259, "The operation failed.");
  WithReportFromDB(t.s, Store(), a->AsObject());
  EXPECT_TRUE(Launches().empty());
  EXPECT_TRUE(t.Reported("Main.WithReportFromDB"));
}

}  // namespace
}  // namespace qvx
