// The calls from the lower layers into the add-in: nothing until the add-in
// connects them, then the real central reporter and tear-down.
#include "addin/upward_calls.h"

#include <gtest/gtest.h>

#include "core/failure.h"
#include "state/addin_state.h"
#include "unit/reporting/test_addin.h"

namespace qvx::testing {
namespace {

void FailTrapped(AddinState& s) {
  Trapped(s, "Main.Probe", [](Line& line) {
    line = 20;
    throw Failure(91, "QVX", "Object variable or With block variable not set");
  });
}

TEST(UpwardCalls, AStateNotConnectedReportsNothingAndTearsNothingDown) {
  TestAddin t;
  AddinState bare(t.s.platform);
  bare.main.objOutlook = t.s.main.objOutlook;
  FailTrapped(bare);
  EXPECT_TRUE(t.Reports().empty());
  EXPECT_EQ(bare.err.number, 91);  // the pending error is kept all the same
  bare.upward().subKillObjects();
  bare.upward().UpdateAllDisplayedToolbars();
  bare.upward().subInvalidateRibbon();
  EXPECT_FALSE(bare.main.objOutlook.IsNothing());
}

TEST(UpwardCalls, AConnectedStateReachesTheReporterAndTheTearDown) {
  TestAddin t;  // connected as the add-in connects its own
  FailTrapped(t.s);
  EXPECT_TRUE(t.Reported("Main.Probe"));
  // No explorers' sink and no ribbon yet: the refreshes have nothing to do.
  t.s.upward().UpdateAllDisplayedToolbars();
  t.s.upward().subInvalidateRibbon();
  t.s.upward().subKillObjects();
  EXPECT_TRUE(t.s.main.objOutlook.IsNothing());
  EXPECT_EQ(t.s.main.objMySettings, nullptr);
  EXPECT_EQ(t.Reports().size(), 1u);
}

}  // namespace
}  // namespace qvx::testing
