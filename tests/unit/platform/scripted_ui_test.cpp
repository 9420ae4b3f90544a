#include "platform/posix/scripted_ui.h"

#include <gtest/gtest.h>

namespace qvx::platform {
namespace {

// A form with a text box, an OK button that unloads it, and a button that does nothing.
class TestForm : public FormModel {
 public:
  bool unloadOnClose = true;
  std::vector<std::string> events;

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

  int height = 300;
  bool unloaded = false;
  std::vector<FormControl> controls{{"txtName", "textbox", "", "start"},
                                    {"cmdOK", "button", "OK", ""},
                                    {"cmdGrow", "button", "Grow", ""}};
};

TEST(ScriptedUiMessageBox, DefaultAnswerIsOkOrFirstButton) {
  struct Row {
    int style;
    int answer;
  };
  const Row rows[] = {{msgbox::kOkOnly, msgbox::kOk},
                      {msgbox::kOkOnly | msgbox::kCritical, msgbox::kOk},
                      {msgbox::kOkCancel, msgbox::kOk},
                      {2, 3},
                      {msgbox::kYesNoCancel, msgbox::kYes},
                      {msgbox::kYesNo | msgbox::kQuestion, msgbox::kYes},
                      {5, 4}};
  ScriptedUserInterface ui;
  for (const Row& row : rows) {
    EXPECT_EQ(ui.MessageBox("text", row.style, "title"), row.answer) << "style " << row.style;
  }
}

TEST(ScriptedUiMessageBox, QueuedAnswersComeFirstThenTheConfiguredDefault) {
  ScriptedUserInterface ui;
  ui.QueueAnswer(msgbox::kNo);
  ui.SetDefaultAnswer(msgbox::kCancel);
  EXPECT_EQ(ui.MessageBox("first", msgbox::kYesNo, "t"), msgbox::kNo);
  EXPECT_EQ(ui.MessageBox("second", msgbox::kYesNo, "t"), msgbox::kCancel);
  ui.SetDefaultAnswer(std::nullopt);
  EXPECT_EQ(ui.MessageBox("third", msgbox::kYesNo, "t"), msgbox::kYes);
}

TEST(ScriptedUiMessageBox, RecordsTextStyleTitleAndAnswer) {
  ScriptedUserInterface ui;
  ui.MessageBox("Hello\r\nWorld", msgbox::kCritical, "Quorvix Client Addin");
  ASSERT_EQ(ui.MessageBoxes().size(), 1u);
  const MessageBoxRecord& box = ui.MessageBoxes()[0];
  EXPECT_EQ(box.text, "Hello\r\nWorld");
  EXPECT_EQ(box.style, msgbox::kCritical);
  EXPECT_EQ(box.title, "Quorvix Client Addin");
  EXPECT_EQ(box.answer, msgbox::kOk);
}

TEST(ScriptedUiForm, WithoutScriptTheCloseBoxEndsIt) {
  ScriptedUserInterface ui;
  TestForm form;
  ui.ShowModal(form);
  ASSERT_EQ(ui.Forms().size(), 1u);
  EXPECT_TRUE(ui.Forms()[0].closedByCloseBox);
  EXPECT_FALSE(ui.Forms()[0].stuck);
  EXPECT_EQ(form.events, std::vector<std::string>{"close"});
}

TEST(ScriptedUiForm, SetTextThenClickRunsInOrderAndStopsOnUnload) {
  ScriptedUserInterface ui;
  ui.QueueForm(FormScript().SetText("txtName", "typed").Click("cmdOK").Click("cmdGrow"));
  TestForm form;
  ui.ShowModal(form);
  EXPECT_EQ(form.controls[0].text, "typed");
  EXPECT_EQ(form.events, (std::vector<std::string>{"txtName.Change", "cmdOK.Click"}));
  const FormRecord& record = ui.Forms()[0];
  EXPECT_EQ(record.caption, "Test Form");
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

TEST(ScriptedUiForm, NestedBoxesAreRecordedInOrder) {
  ScriptedUserInterface ui;
  ui.QueueForm(
      FormScript().Do([&ui](FormModel&) { ui.MessageBox("inner", 0, "t"); }).Click("cmdOK"));
  TestForm form;
  ui.ShowModal(form);
  ASSERT_EQ(ui.MessageBoxes().size(), 1u);
  EXPECT_LT(ui.Forms()[0].sequence, ui.MessageBoxes()[0].sequence);
  EXPECT_EQ(ui.PendingForms(), 0u);
}

}  // namespace
}  // namespace qvx::platform
