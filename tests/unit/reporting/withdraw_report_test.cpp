#include "reporting/withdraw_report.h"

#include <gtest/gtest.h>

#include "platform/user_interface.h"
#include "unit/reporting/report_fixture.h"

namespace qvx {
namespace {

namespace msgbox = platform::msgbox;

using WithdrawReport = testing::ReportTest;

TEST_F(WithdrawReport, UnreportedGoneOrNoItemIsPassedOverWithNoWord) {
  auto unreported = Appointment("A");
  auto empty = Appointment("B");
  Tag(*empty, "ReportedID", "");
  auto gone = Appointment("C");
  Tag(*gone, "ReportedID", "1");
  for (const auto& item : {unreported, empty}) {
    Select({item});
    WithdrawReportFromDB(t.s);
  }
  Select({});
  WithdrawReportFromDB(t.s);
  Select({gone});
  gone->Delete();
  WithdrawReportFromDB(t.s);
  EXPECT_TRUE(Boxes().empty());
  EXPECT_TRUE(Launches().empty());
  EXPECT_TRUE(t.Reports().empty());
}

TEST_F(WithdrawReport, OnlyTheFirstOfASelectionAndBlanksCountAsReported) {
  auto a = Appointment("A");
  auto b = Appointment("B");
  Tag(*a, "ReportedID", "  ");
  Tag(*b, "ReportedID", "2");
  Select({a, b});
  WithdrawReportFromDB(t.s);  // the first button, Yes
  ASSERT_EQ(Boxes().size(), 1u);
  EXPECT_EQ(Boxes()[0].text,
            "Are you sure you want to withdraw the reported data (ID #  ) from the "
            "database?\r\nNote: Once you click 'Yes', this action cannot be undone!");
  EXPECT_EQ(Arguments(), std::vector<std::string>{"2|" + Store() + "|" + a->EntryId() + ";"});
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

TEST_F(WithdrawReport, NoOrNoStoreSendsNothing) {
  auto a = Appointment("A");
  Tag(*a, "ReportedID", "1");
  Select({a});
  t.ui.QueueAnswer(msgbox::kNo);
  WithdrawReportFromDB(t.s);
  a->FailMember("Parent", -2147467259, "The operation failed.");
  world.FailAt("ActiveExplorer.CurrentFolder", -2147467259, "The operation failed.");
  WithdrawReportFromDB(t.s);  // the first button, Yes
  EXPECT_EQ(Boxes().size(), 2u);
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
