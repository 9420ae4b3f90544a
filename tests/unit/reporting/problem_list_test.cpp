#include "reporting/problem_list.h"

#include <gtest/gtest.h>

#include "platform/posix/scripted_ui.h"
#include "unit/reporting/test_addin.h"

namespace qvx {
namespace {

// Enter on its OK button: report_refused_item.qvx; Esc means OK too.
TEST(ProblemList, EscMeansOk) {
  testing::TestAddin t;
  platform::FormScript script;
  t.ui.QueueForm(script.Escape());
  ShowProblemList(t.s, "x");
  ASSERT_EQ(t.ui.Forms().size(), 1u);
  EXPECT_FALSE(t.ui.Forms()[0].closedByCloseBox);
}

}  // namespace
}  // namespace qvx
