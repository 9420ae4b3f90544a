#include "reporting/withdraw_report.h"

#include <gtest/gtest.h>

#include "platform/user_interface.h"
#include "unit/reporting/report_fixture.h"

namespace qvx {
namespace {

namespace msgbox = platform::msgbox;

using WithdrawReport = testing::ReportTest;

std::string Question(const std::string& id) {
  return "Are you sure you want to withdraw the reported data (ID #" + id +
         ") from the database?\r\nNote: Once you click 'Yes', this action cannot be undone!";
}

TEST_F(WithdrawReport, AReportedItemIsWithdrawnAfterYes) {
  auto a = Appointment("A");
  Tag(*a, "ReportedID", "1042");
  Select({a});
  t.ui.QueueAnswer(msgbox::kYes);
  WithdrawReportFromDB(t.s);
  ASSERT_EQ(Boxes().size(), 1u);
  EXPECT_EQ(Boxes()[0].text, Question("1042"));
  EXPECT_EQ(Boxes()[0].style, msgbox::kYesNo + msgbox::kInformation);
  EXPECT_EQ(Boxes()[0].title, "Quorvix Client Addin");
  ASSERT_EQ(Launches().size(), 1u);
  EXPECT_TRUE(Launches()[0].path.ends_with("QuorvixClient.exe"));
  EXPECT_EQ(Launches()[0].argument, "2|" + Store() + "|" + a->EntryId() + ";");
  EXPECT_TRUE(t.Reports().empty());
}

TEST_F(WithdrawReport, NoMeansNothingHappens) {
  auto a = Appointment("A");
  Tag(*a, "ReportedID", "7");
  Select({a});
  t.ui.QueueAnswer(msgbox::kNo);
  WithdrawReportFromDB(t.s);
  EXPECT_EQ(Boxes().size(), 1u);
  EXPECT_TRUE(Launches().empty());
}

TEST_F(WithdrawReport, AnUnreportedItemIsPassedOverWithNoWord) {
  auto a = Appointment("A");
  Select({a});
  WithdrawReportFromDB(t.s);
  Tag(*a, "ReportedID", "");
  WithdrawReportFromDB(t.s);
  Select({});
  WithdrawReportFromDB(t.s);
  EXPECT_TRUE(Boxes().empty());
  EXPECT_TRUE(Launches().empty());
  EXPECT_TRUE(t.Reports().empty());
}

TEST_F(WithdrawReport, BlanksCountAsReported) {
  auto a = Appointment("A");
  Tag(*a, "ReportedID", "  ");
  Select({a});
  WithdrawReportFromDB(t.s);  // the first button, Yes
  EXPECT_EQ(Boxes().at(0).text, Question("  "));
  EXPECT_EQ(Arguments(), std::vector<std::string>{"2|" + Store() + "|" + a->EntryId() + ";"});
}

TEST_F(WithdrawReport, OnlyTheFirstOfASelection) {
  auto a = Appointment("A");
  auto b = Appointment("B");
  Tag(*a, "ReportedID", "1");
  Tag(*b, "ReportedID", "2");
  Select({a, b});
  WithdrawReportFromDB(t.s);
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

TEST_F(WithdrawReport, WithoutAStoreNothingIsSent) {
  auto a = Appointment("A");
  Tag(*a, "ReportedID", "1");
  Select({a});
  a->FailMember("Parent", -2147467259, "The operation failed.");
  world.FailAt("ActiveExplorer.CurrentFolder", -2147467259, "The operation failed.");
  WithdrawReportFromDB(t.s);
  EXPECT_EQ(Boxes().size(), 1u);
  EXPECT_TRUE(Launches().empty());
  EXPECT_TRUE(t.Reports().empty());
}

TEST_F(WithdrawReport, AnItemThatHasGoneReadsAsUnreported) {
  auto a = Appointment("A");
  Tag(*a, "ReportedID", "1");
  Select({a});
  a->Delete();
  WithdrawReportFromDB(t.s);
  EXPECT_TRUE(Boxes().empty());
  EXPECT_TRUE(Launches().empty());
  EXPECT_TRUE(t.Reports().empty());
}

TEST_F(WithdrawReport, ARefusedEntryIdIsReportedAndNothingSent) {
  auto a = Appointment("A");
  a->FailMember("EntryID", -2147467259, "The operation failed.");
  WithReportFromDB(t.s, Store(), a->AsObject());
  EXPECT_TRUE(Launches().empty());
  EXPECT_TRUE(t.Reported("Main.WithReportFromDB", 30));
}

}  // namespace
}  // namespace qvx
