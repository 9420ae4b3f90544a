#include "apps/QuorvixClient/standin_contract.h"

#include <gtest/gtest.h>

#include "apps/QuorvixClient/journal.h"

namespace qvx::standin {
namespace {

// What the add-in builds is accepted by the scenarios; these are the refusals
// that make the stand-ins a check of it.
TEST(StandInContract, ClientTakesSectionsAndActionsOnly) {
  for (const auto& [argument, kind] : {std::pair<const char*, const char*>{"28", "section"},
                                       {"0|S|E1;,E2;", "report"},
                                       {"0|S|E", "report"},
                                       {"2|S|E;1/2/2026 3:04:05 PM", "withdraw"}}) {
    const Verdict v = CheckClientArgument(argument);
    EXPECT_EQ(v.kind, kind) << argument;
    EXPECT_EQ(v.error, "") << argument;
  }
  for (const char* refused :
       {"7", "06", " 6", "99999999999999", "", "1|S|E;", "|S|E;", "0||E;", "0|S|", "0|S|E;|x",
        "0|S|;x", "0|S|E1;,,E2;", "0|S|E1;,", "report|S|E"}) {
    const Verdict v = CheckClientArgument(refused);
    EXPECT_FALSE(v.accepted()) << refused;
    EXPECT_NE(v.error, "") << refused;  // with a reason
  }
}

TEST(StandInContract, StatisticsNeedsItsFormWithoutBlanks) {
  EXPECT_EQ(CheckStatisticsArgument("Data_SPACE_Source=x|0|Jane_SPACE_Doe").kind, "statistics");
  EXPECT_EQ(CheckStatisticsArgument("Server=db|0|").kind, "statistics");  // no user name
  for (const char* bad : {"Data Source=x|0|jd", "x|1|jd", "x|0", "|0|jd", "x|0|jd|y", "6"}) {
    EXPECT_FALSE(CheckStatisticsArgument(bad).accepted()) << bad;
  }
}

TEST(StandInJournal, WritesOneTabSeparatedLineWithControlsEscaped) {
  EXPECT_EQ(JournalLine("QuorvixOLAP", "rejected", "C:\\a\tb\nc"),
            "QuorvixOLAP\trejected\tC:\\a\\x09b\\x0Ac\n");
}

}  // namespace
}  // namespace qvx::standin
