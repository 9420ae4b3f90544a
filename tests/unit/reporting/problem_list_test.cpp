#include "reporting/problem_list.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/posix/scripted_ui.h"
#include "unit/reporting/test_addin.h"

namespace qvx {
namespace {

TEST(ProblemList, OnlyOkAndTheCloseBoxUnload) {
  frmMessage clicked;
  EXPECT_EQ(clicked.Find("Label1")->caption,
            "Please review the following problems with reporting the selected items:");
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

TEST(ProblemList, ShowProblemListShowsTheTextModally) {
  testing::TestAddin t;
  t.ui.QueueForm(platform::FormScript().Click("cmdOK"));
  const std::string list = "Doctor\r\n\t- Problem: Private Item not allowed for reporting!";
  ShowProblemList(t.s, list);
  ASSERT_EQ(t.ui.Forms().size(), 1u);
  const platform::FormRecord& form = t.ui.Forms()[0];
  EXPECT_EQ(form.caption, "Message Manager");
  EXPECT_FALSE(form.closedByCloseBox);
  EXPECT_FALSE(form.stuck);
  auto text = std::find_if(form.controls.begin(), form.controls.end(),
                           [](const auto& control) { return control.name == "txtMessage"; });
  ASSERT_NE(text, form.controls.end());
  EXPECT_EQ(text->text, list);
}

}  // namespace
}  // namespace qvx
