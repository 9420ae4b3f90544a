#include "apps/QuorvixClient/standin_contract.h"

#include <gtest/gtest.h>

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
  for (const char* refused : {"7", "06", " 6", "99999999999999", "", "1|S|E;", "|S|E;", "0||E;",
                              "0|S|", "0|S|E;|x", "0|S|;x", "0|S|E1;,,E2;", "0|S|E1;,"}) {
    const Verdict v = CheckClientArgument(refused);
    EXPECT_FALSE(v.accepted()) << refused;
    EXPECT_NE(v.error, "") << refused;  // with a reason
  }
}

}  // namespace
}  // namespace qvx::standin
