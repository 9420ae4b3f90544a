#include "platform/posix/scripted_ui.h"

#include <gtest/gtest.h>

namespace qvx::platform {
namespace {

// A form with a text box, an OK button that unloads it, and a button that grows it.
class TestForm : public FormModel {
 public:
  bool unloadOnClose = true;
  std::vector<std::string> events;
  int height = 300;
  bool unloaded = false;
  std::vector<FormControl> controls{{"txtName", "textbox", "", "start"},
                                    {"cmdOK", "button", "OK", ""},
                                    {"cmdGrow", "button", "Grow", ""}};

  std::string Caption() const override { return "Test Form"; }
  int Height() const override { return height; }
  std::vector<FormControl>& Controls() override { return controls; }
  void OnEvent(std::string_view control, std::string_view event) override {
    events.push_back(std::string(control) + "." + std::string(event));
    if (control == "cmdOK" && event == "Click") unloaded = true;
    if (control == "cmdGrow" && event == "Click") height = 900;
  }
  bool Unloaded() const override { return unloaded; }
  void OnClose() override {
    events.push_back("close");
    if (unloadOnClose) unloaded = true;
  }
};

TEST(ScriptedUiMessageBox, DefaultAnswerIsOkOrFirstButton) {
  const struct {
    int style;
    int answer;
  } rows[] = {{msgbox::kOkOnly | msgbox::kCritical, msgbox::kOk},
              {msgbox::kOkCancel, msgbox::kOk},
              {2, 3},
              {msgbox::kYesNo | msgbox::kQuestion, msgbox::kYes},
              {5, 4}};
  ScriptedUserInterface ui;
  for (const auto& row : rows) {
    EXPECT_EQ(ui.MessageBox("text", row.style, "title"), row.answer) << "style " << row.style;
  }
}

TEST(ScriptedUiForm, WithoutScriptTheCloseBoxEndsIt) {
  ScriptedUserInterface ui;
  TestForm form;
  ui.ShowModal(form);
  ASSERT_EQ(ui.Forms().size(), 1u);
  EXPECT_TRUE(ui.Forms()[0].closedByCloseBox);
  EXPECT_EQ(form.events, std::vector<std::string>{"close"});
}

TEST(ScriptedUiForm, SetTextThenClickRunsInOrderAndStopsOnUnload) {
  ScriptedUserInterface ui;
  ui.QueueForm(FormScript().SetText("txtName", "typed").Click("cmdOK").Click("cmdGrow"));
  TestForm form;
  ui.ShowModal(form);
  EXPECT_EQ(form.events, (std::vector<std::string>{"txtName.Change", "cmdOK.Click"}));
  const FormRecord& record = ui.Forms()[0];
  EXPECT_EQ(record.controls[0].text, "start");
  EXPECT_EQ(record.finalControls[0].text, "typed");
  EXPECT_FALSE(record.closedByCloseBox);
}

TEST(ScriptedUiForm, AFormThatRefusesToGoDoesNotHang) {
  ScriptedUserInterface ui;
  ui.QueueForm(FormScript().Click("cmdGrow"));
  TestForm form;
  form.unloadOnClose = false;
  ui.ShowModal(form);
  const FormRecord& record = ui.Forms()[0];
  EXPECT_TRUE(record.stuck);
  EXPECT_EQ(record.height, 300);
  EXPECT_EQ(record.finalHeight, 900);
}

}  // namespace
}  // namespace qvx::platform
