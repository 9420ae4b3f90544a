#include "reporting/problem_list.h"

#include <gtest/gtest.h>

#include "platform/posix/scripted_ui.h"
#include "unit/reporting/test_addin.h"

namespace qvx {
namespace {

TEST(ProblemList, TheFormHasItsFixedTextsAndTheList) {
  frmMessage form;
  EXPECT_EQ(form.Caption(), "Message Manager");
  ASSERT_EQ(form.Controls().size(), 3u);
  EXPECT_EQ(form.Find("Label1")->caption,
            "Please review the following problems with reporting the selected items:");
  EXPECT_EQ(form.Find("Label1")->kind, "label");
  EXPECT_EQ(form.Find("txtMessage")->kind, "textbox");
  EXPECT_EQ(form.Find("txtMessage")->text, "");
  EXPECT_EQ(form.Find("cmdOK")->kind, "button");
  form.ShowMessage("A\r\n\t- Problem");
  EXPECT_EQ(form.Find("txtMessage")->text, "A\r\n\t- Problem");
  EXPECT_FALSE(form.Unloaded());
}

TEST(ProblemList, OkAndTheCloseBoxUnload) {
  frmMessage clicked;
  clicked.OnEvent("txtMessage", "Click");
  clicked.OnEvent("cmdOK", "Change");
  EXPECT_FALSE(clicked.Unloaded());
  clicked.OnEvent("cmdOK", "Click");
  EXPECT_TRUE(clicked.Unloaded());
  frmMessage closed;
  closed.OnClose();
  EXPECT_TRUE(closed.Unloaded());
}

TEST(ProblemList, ShowProblemListShowsTheTextModallyOnce) {
  testing::TestAddin t;
  t.ui.QueueForm(platform::FormScript().Click("cmdOK"));
  ShowProblemList(t.s, "Doctor\r\n\t- Problem: Private Item not allowed for reporting!");
  ShowProblemList(t.s, "second");
  ASSERT_EQ(t.ui.Forms().size(), 2u);
  const platform::FormRecord& first = t.ui.Forms()[0];
  EXPECT_EQ(first.caption, "Message Manager");
  EXPECT_FALSE(first.closedByCloseBox);
  EXPECT_FALSE(first.stuck);
  bool found = false;
  for (const auto& control : first.controls) {
    if (control.name != "txtMessage") continue;
    found = true;
    EXPECT_EQ(control.text, "Doctor\r\n\t- Problem: Private Item not allowed for reporting!");
  }
  EXPECT_TRUE(found);
  EXPECT_TRUE(t.ui.Forms()[1].closedByCloseBox);
}

}  // namespace
}  // namespace qvx
