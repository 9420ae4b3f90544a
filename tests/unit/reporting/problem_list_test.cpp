#include "reporting/problem_list.h"

#include <gtest/gtest.h>

#include "platform/posix/scripted_ui.h"
#include "unit/reporting/test_addin.h"

namespace qvx {
namespace {

TEST(ProblemList, OnlyOkAndTheCloseBoxUnload) {
  frmMessage clicked;
  clicked.Raise("txtMessage", "Click");
  clicked.Raise("cmdOK", "Change");
  EXPECT_FALSE(clicked.Unloaded());
  clicked.Raise("cmdOK", "Click");
  EXPECT_TRUE(clicked.Unloaded());
  frmMessage closed;
  EXPECT_TRUE(closed.QueryClose());
  EXPECT_TRUE(closed.Unloaded());
}

TEST(ProblemList, EnterAndEscBothMeanOk) {
  for (const bool escape : {false, true}) {
    testing::TestAddin t;
    platform::FormScript script;
    t.ui.QueueForm(escape ? script.Escape() : script.Enter());
    ShowProblemList(t.s, "x");
    ASSERT_EQ(t.ui.Forms().size(), 1u);
    EXPECT_FALSE(t.ui.Forms()[0].closedByCloseBox) << "escape " << escape;
  }
}

}  // namespace
}  // namespace qvx
