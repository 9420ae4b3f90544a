#include "platform/posix/scripted_ui.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace qvx::platform {
namespace {

// A form with a text box, an OK button that unloads it, and a button that grows
// it; every event is logged, and the close box is refused unless allowed.
class TestForm : public FormModel {
 public:
  bool unloadOnClose = true;
  std::vector<std::string> events;

  TestForm()
      : FormModel("Test Form", 300,
                  {Text("txtName", "start"), MakeControl("cmdOK", kind::kButton, "OK"),
                   MakeControl("cmdGrow", kind::kButton, "Grow")}) {
    for (const char* name : {"txtName", "cmdOK", "cmdGrow"}) {
      for (const char* event : {"Click", "Change"}) {
        On(name, event,
           [this, name, event](EventArgs&) { events.push_back(std::string(name) + "." + event); });
      }
    }
    On("cmdOK", "Click", [this](EventArgs&) { Unload(); });
    On("cmdGrow", "Click", [this](EventArgs&) { SetHeight(900); });
    On(kFormEvents, "QueryClose", [this](EventArgs& args) {
      if (args.at(1).ToLong() == kCloseByControlMenu) events.push_back("close");
      if (!unloadOnClose) args[0] = Variant(true);
    });
  }

 private:
  static FormControl Text(std::string name, std::string text) {
    FormControl c = MakeControl(std::move(name), kind::kTextBox, "");
    c.text = std::move(text);
    return c;
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

// A form with the controls the user's acts need: a text box, a locked box, a combo box, a check
// box, Save (default, disabled until a tick) and Cancel.
class EditForm : public FormModel {
 public:
  std::vector<std::string> events;

  EditForm() : FormModel("Edit", 3000, Layout()) {
    for (const char* name : {"txtNote", "cboRows", "chkSure"}) {
      for (const char* event : {"Change", "Click"}) {
        On(name, event,
           [this, name, event](EventArgs&) { events.push_back(std::string(name) + "." + event); });
      }
    }
    On("chkSure", "Click", [this](EventArgs&) { At("cmdSave").enabled = At("chkSure").value; });
    On("cmdSave", "Click", [this](EventArgs&) {
      events.push_back("save");
      Unload();
    });
    On("cmdCancel", "Click", [this](EventArgs&) {
      events.push_back("cancel");
      Unload();
    });
  }

 private:
  static std::vector<FormControl> Layout() {
    FormControl locked = MakeControl("txtLocked", kind::kTextBox, "");
    locked.locked = true;
    FormControl rows = MakeControl("cboRows", kind::kCombo, "");
    rows.list = {"Alpha", "Beta"};
    FormControl save = MakeControl("cmdSave", kind::kButton, "&Save");
    save.isDefault = true;
    save.enabled = false;
    FormControl cancel = MakeControl("cmdCancel", kind::kButton, "&Cancel");
    cancel.isCancel = true;
    return {MakeControl("txtNote", kind::kTextBox, ""),   locked, rows,
            MakeControl("chkSure", kind::kCheck, "Sure"), save,   cancel};
  }
};

const FormControl& Final(const FormRecord& record, const std::string& name) {
  for (const FormControl& c : record.finalControls) {
    if (c.name == name) return c;
  }
  throw std::out_of_range(name);
}

// Keys typed through KeyPress are proven by fields_dialog.qvx.
TEST(ScriptedUiUserActs, TheUserCannotActOnWhatIsLockedDisabledOrAbsent) {
  ScriptedUserInterface ui;
  ui.QueueForm(FormScript()
                   .Type("txtLocked", "x")
                   .Press("cmdSave")
                   .Enter()
                   .Choose("cboRows", "Gamma")
                   .Tick("txtNote", true)
                   .Press("cmdNone")
                   .Escape());
  EditForm form;
  ui.ShowModal(form);
  const FormRecord& record = ui.Forms()[0];
  EXPECT_EQ(record.refused,
            (std::vector<std::string>{"txtLocked is locked", "cmdSave is disabled",
                                      "cmdSave is disabled", "cboRows has no row \"Gamma\"",
                                      "txtNote is no check box", "no control cmdNone"}));
  EXPECT_EQ(form.events, std::vector<std::string>{"cancel"});  // Esc clicked Cancel
  EXPECT_FALSE(record.closedByCloseBox);
}

TEST(ScriptedUiUserActs, ChoosingTickingAndEnter) {
  ScriptedUserInterface ui;
  ui.QueueForm(FormScript().Choose("cboRows", "Beta").Tick("chkSure", true).Enter());
  EditForm form;
  ui.ShowModal(form);
  EXPECT_EQ(form.events, (std::vector<std::string>{"cboRows.Change", "cboRows.Click",
                                                   "chkSure.Change", "chkSure.Click", "save"}));
  EXPECT_EQ(Final(ui.Forms()[0], "cboRows").listIndex, 1);
  EXPECT_TRUE(ui.Forms()[0].refused.empty());
}

TEST(ScriptedUiUserActs, EscapeWithoutACancelButtonIsTheCloseBox) {
  ScriptedUserInterface ui;
  ui.QueueForm(FormScript().Escape());
  TestForm form;
  ui.ShowModal(form);
  EXPECT_EQ(form.events, std::vector<std::string>{"close"});
  EXPECT_FALSE(ui.Forms()[0].closedByCloseBox);  // the script closed it
}

}  // namespace
}  // namespace qvx::platform
