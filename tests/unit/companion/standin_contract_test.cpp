#include "apps/QuorvixClient/standin_contract.h"

#include <gtest/gtest.h>

#include "apps/QuorvixClient/journal.h"
#include "companion/command_lines.h"
#include "companion/section_codes.h"

namespace qvx::standin {
namespace {

TEST(StandInContract, AcceptsEverySectionAndNothingElse) {
  for (int32_t section : companion::kAllSections) {
    EXPECT_EQ(CheckClientArgument(std::to_string(section)).kind, "section") << section;
  }
  for (const char* bad :
       {"0", "1", "7", "29", "06", "-6", " 6", "6 ", "+6", "99999999999999", ""}) {
    const Verdict v = CheckClientArgument(bad);
    EXPECT_FALSE(v.accepted()) << bad;
    EXPECT_FALSE(v.error.empty()) << bad;
  }
}

TEST(StandInContract, AcceptsWhatTheAddinBuilds) {
  using namespace companion;
  struct Row {
    std::string argument;
    const char* kind;
  };
  const Row rows[] = {
      {ReportCommand("S", {ReportEntry("E1", ""), ReportEntry("E2", "")}), "report"},
      {ReportCommand("S", {ReportEntry("E", "3/7/2010 9:30:00 AM")}), "report"},
      {AutomaticReportCommand("S", "E"), "report"},
      {WithdrawCommand("S", "E", ""), "withdraw"},
      {WithdrawCommand("S", "E", "1/2/2026 3:04:05 PM"), "withdraw"},
  };
  for (const Row& row : rows)
    EXPECT_EQ(CheckClientArgument(row.argument).kind, row.kind) << row.argument;
}

TEST(StandInContract, RejectsMalformedActions) {
  for (const char* bad : {"1|S|E;", "3|S|E;", "|S|E;", "0||E;", "0|S|", "0|S", "0|S|E;|x", "0|S|;x",
                          "0|S|E1;,,E2;", "0|S|E1;,", "2|S|;", "report|S|E"}) {
    const Verdict v = CheckClientArgument(bad);
    EXPECT_FALSE(v.accepted()) << bad;
    EXPECT_FALSE(v.error.empty()) << bad;
  }
}

TEST(StandInContract, StatisticsNeedsItsFormWithoutBlanks) {
  EXPECT_EQ(
      CheckStatisticsArgument(
          companion::StatisticsCommand(companion::FileDatabaseConnection("C:\\Data\\"), "Jane Doe"))
          .kind,
      "statistics");
  EXPECT_EQ(CheckStatisticsArgument("Server=db|0|").kind, "statistics");  // no user name
  for (const char* bad : {"Data Source=x|0|jd", "x|1|jd", "x|0", "|0|jd", "x|0|jd|y", "6", ""}) {
    EXPECT_FALSE(CheckStatisticsArgument(bad).accepted()) << bad;
  }
}

TEST(StandInJournal, WritesOneTabSeparatedLineWithControlsEscaped) {
  EXPECT_EQ(JournalLine("QuorvixClient", "section", "6"), "QuorvixClient\tsection\t6\n");
  EXPECT_EQ(JournalLine("QuorvixOLAP", "rejected", "a\tb\nc"),
            "QuorvixOLAP\trejected\ta\\x09b\\x0Ac\n");
  EXPECT_EQ(JournalLine("P", "k", "C:\\Data"), "P\tk\tC:\\Data\n");
}

}  // namespace
}  // namespace qvx::standin
