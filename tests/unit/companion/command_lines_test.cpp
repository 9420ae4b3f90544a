#include "companion/command_lines.h"

#include <gtest/gtest.h>

#include "companion/section_codes.h"
#include "core/dates.h"

namespace qvx::companion {
namespace {

TEST(CompanionCommandLines, ActionsFollowTheContract) {
  struct Row {
    const char* what;
    std::string built;
    const char* expected;
  };
  const Row rows[] = {
      {"report of two plain items",
       ReportCommand("S", {ReportEntry("E1", ""), ReportEntry("E2", "")}), "0|S|E1;,E2;"},
      {"report of one plain item", ReportCommand("S", {ReportEntry("E", "")}), "0|S|E;"},
      {"report of one occurrence", ReportCommand("S", {ReportEntry("E", "3/7/2010 9:30:00 AM")}),
       "0|S|E;3/7/2010 9:30:00 AM"},
      {"report of a plain item and an occurrence",
       ReportCommand("S", {ReportEntry("E1", ""), ReportEntry("E2", "3/7/2010 9:30:00 AM")}),
       "0|S|E1;,E2;3/7/2010 9:30:00 AM"},
      {"automatic report of a completed task", AutomaticReportCommand("S", "E"), "0|S|E"},
      {"withdrawal of a plain item", WithdrawCommand("S", "E", ""), "2|S|E;"},
      {"withdrawal of an occurrence", WithdrawCommand("S", "E", "1/2/2026 3:04:05 PM"),
       "2|S|E;1/2/2026 3:04:05 PM"},
      {"host ids are copied as they are",
       ReportCommand("0000000038A1BB1005E5101AA1BB08002B2A56C2",
                     {ReportEntry("00000000E1C4A3B8F7DE2A4D9FA2", "")}),
       "0|0000000038A1BB1005E5101AA1BB08002B2A56C2|00000000E1C4A3B8F7DE2A4D9FA2;"},
  };
  for (const Row& row : rows) EXPECT_EQ(row.built, row.expected) << row.what;
}

TEST(CompanionCommandLines, OccurrenceStartIsTheDefaultTextOfStart) {
  const DateValue start = ComposeDate({2010, 3, 7, 9, 30, 0});
  EXPECT_EQ(OccurrenceStartText(Variant(start)), DateToText(start));
  EXPECT_EQ(ReportCommand("S", {ReportEntry("E", OccurrenceStartText(Variant(start)))}),
            "0|S|E;" + DateToText(start));
}

TEST(CompanionCommandLines, StatisticsReplacesEveryBlank) {
  struct Row {
    std::string connection;
    const char* user;
    const char* expected;
  };
  const Row rows[] = {
      {FileDatabaseConnection("C:\\Data\\"), "Jane Doe",
       "Provider=Microsoft.Jet.OLEDB.4.0;Data_SPACE_Source=C:\\Data\\Quorvix.mdb|0|Jane_SPACE_Doe"},
      {FileDatabaseConnection("C:\\Data"), "jd",
       "Provider=Microsoft.Jet.OLEDB.4.0;Data_SPACE_Source=C:\\Data\\Quorvix.mdb|0|jd"},
      {"Server=db1;Initial Catalog=Time Sheets", "",
       "Server=db1;Initial_SPACE_Catalog=Time_SPACE_Sheets|0|"},
      {"  ", "a  b", "_SPACE__SPACE_|0|a_SPACE__SPACE_b"},
  };
  for (const Row& row : rows) EXPECT_EQ(StatisticsCommand(row.connection, row.user), row.expected);
}

TEST(CompanionCommandLines, FileDatabaseDropsOneTrailingSeparatorOnly) {
  EXPECT_EQ(FileDatabaseConnection("C:\\Data\\\\"),
            "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=C:\\Data\\\\Quorvix.mdb");
  EXPECT_EQ(FileDatabaseConnection("/srv/data/"),
            "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=/srv/data\\Quorvix.mdb");
  EXPECT_EQ(FileDatabaseConnection(""),
            "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=\\Quorvix.mdb");
}

TEST(CompanionSections, AreExactlyTheNineNumbers) {
  for (int64_t n = -1; n <= 40; ++n) {
    const bool known = n == 6 || n == 14 || n == 15 || n == 17 || n == 19 || n == 21 || n == 26 ||
                       n == 27 || n == 28;
    EXPECT_EQ(IsKnownSection(n), known) << n;
  }
  EXPECT_EQ(kActionReport, 0);
  EXPECT_EQ(kActionWithdraw, 2);
}

}  // namespace
}  // namespace qvx::companion
