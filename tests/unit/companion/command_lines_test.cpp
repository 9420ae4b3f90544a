#include "companion/command_lines.h"

#include <gtest/gtest.h>

#include "core/dates.h"

namespace qvx::companion {
namespace {

TEST(CompanionCommandLines, ActionsFollowTheContract) {
  const std::string start = OccurrenceStartText(Variant(ComposeDate({2010, 3, 7, 9, 30, 0})));
  const std::pair<std::string, const char*> rows[] = {
      {ReportCommand("S", {ReportEntry("E1", ""), ReportEntry("E2", "")}), "0|S|E1;,E2;"},
      {ReportCommand("S", {ReportEntry("E", start)}), "0|S|E;3/7/2010 9:30:00 AM"},
      {AutomaticReportCommand("S", "E"), "0|S|E"},
      {WithdrawCommand("S", "E", ""), "2|S|E;"},
      {WithdrawCommand("S", "E", "1/2/2026 3:04:05 PM"), "2|S|E;1/2/2026 3:04:05 PM"},
  };
  for (const auto& [built, expected] : rows) EXPECT_EQ(built, expected);
}

// A file folder with a user name: LaunchTest.StatisticsTakeAFileFolderOrAServerConnection.
TEST(CompanionCommandLines, StatisticsReplacesEveryBlank) {
  const char* kJet = "Provider=Microsoft.Jet.OLEDB.4.0;Data_SPACE_Source=";
  const std::pair<std::string, std::string> rows[] = {
      // One trailing separator goes, of either kind; none is added to.
      {StatisticsCommand(FileDatabaseConnection("C:\\Data\\\\"), "jd"),
       kJet + std::string("C:\\Data\\\\Quorvix.mdb|0|jd")},
      {StatisticsCommand(FileDatabaseConnection("/srv/data/"), "jd"),
       kJet + std::string("/srv/data\\Quorvix.mdb|0|jd")},
      {StatisticsCommand(FileDatabaseConnection("C:\\Data"), "jd"),
       kJet + std::string("C:\\Data\\Quorvix.mdb|0|jd")},
      {StatisticsCommand("Server=db1;Initial Catalog=Time Sheets", ""),
       "Server=db1;Initial_SPACE_Catalog=Time_SPACE_Sheets|0|"},
  };
  for (const auto& [built, expected] : rows) EXPECT_EQ(built, expected);
}

}  // namespace
}  // namespace qvx::companion
