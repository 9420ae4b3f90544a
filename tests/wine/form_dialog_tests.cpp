// The Win32 view of a form model: the dialog shows the model's controls with
// their texts in the system's dialog font and in the model's tab order;
// Enter clicks the default button, Esc the cancel button; the close box asks
// QueryClose, which can keep the dialog open. A key that a KeyPress handler
// swallows never reaches the text box: FieldsDialog shows it with the real form.
//
// The test drives the dialog from its own thread, as a user's input arrives:
// each step runs on a thread timer, which the dialog's loop delivers only
// when every message posted by the step before has been handled.
#include <windows.h>

#include <functional>
#include <string>
#include <vector>

#include "core/variant.h"
#include "harness/check.h"
#include "harness/dialog_driver.h"
#include "platform/form_model.h"

namespace qvx::winetest {
namespace {

using platform::FormControl;
using platform::MakeControl;
namespace kind = platform::kind;

// A form of each kind of control, logging its events as "name.Event".
struct FieldsForm {
  platform::FormModel form{"Test: All Project Fields", 0, Layout()};
  std::vector<std::string> log;
  bool keepOpen = false;
  std::vector<int32_t> closeModes;

  FieldsForm() {
    form.On("cboProject", "Click", [this](EventArgs&) { log.push_back("cboProject.Click"); });
    form.On("cmdSave", "Click", [this](EventArgs&) {
      log.push_back("save");
      form.Unload();
    });
    form.On("cmdCancel", "Click", [this](EventArgs&) {
      log.push_back("cancel");
      form.Unload();
    });
    form.On(platform::kFormEvents, "QueryClose", [this](EventArgs& a) {
      closeModes.push_back(a.at(1).ToLong());
      if (keepOpen) a[0] = Variant(true);
    });
  }

  static std::vector<FormControl> Layout() {
    FormControl project = MakeControl("cboProject", kind::kCombo, "");
    project.list = {"Alpha", "Beta"};
    project.text = "Beta";
    project.listIndex = 1;
    FormControl save = MakeControl("cmdSave", kind::kButton, "&Save");
    save.isDefault = true;
    FormControl cancel = MakeControl("cmdCancel", kind::kButton, "&Cancel");
    cancel.isCancel = true;
    return {MakeControl("lblProject", kind::kLabel, "&Project"),
            project,
            MakeControl("lblField9", kind::kLabel, "Custom Field 9"),
            MakeControl("txtField9", kind::kTextBox, ""),
            save,
            cancel};
  }
};

TEST(FormDialog, ShowsTheModelInTabOrderAndEnterClicksTheDefaultButton) {
  FieldsForm f;
  const bool closedItself = ShowAndDrive(
      f.form,
      {[&](HWND dialog) {
         EXPECT_TRUE(TextOf(dialog) == L"Test: All Project Fields");
         EXPECT_TRUE(TextOf(ControlOf(dialog, 0)) == L"&Project");
         EXPECT_EQ(SendMessageW(ControlOf(dialog, 1), CB_GETCOUNT, 0, 0), LRESULT{2});
         EXPECT_TRUE(TextOf(ControlOf(dialog, 1)) == L"Beta");
         EXPECT_TRUE(TextOf(ControlOf(dialog, 4)) == L"&Save");
         EXPECT_TRUE((GetWindowLongW(ControlOf(dialog, 4), GWL_STYLE) & 0x0F) == BS_DEFPUSHBUTTON);
         // The system's dialog font, on the dialog and its controls alike.
         const auto font = reinterpret_cast<HFONT>(SendMessageW(dialog, WM_GETFONT, 0, 0));
         EXPECT_TRUE(font != nullptr);
         EXPECT_TRUE(
             reinterpret_cast<HFONT>(SendMessageW(ControlOf(dialog, 3), WM_GETFONT, 0, 0)) == font);
         // Tab goes combo, text box, Save, Cancel, and round again.
         std::vector<int> order;
         HWND at = ControlOf(dialog, 1);
         for (int i = 0; i < 4; ++i, at = GetNextDlgTabItem(dialog, at, FALSE)) {
           order.push_back(GetDlgCtrlID(at) - kFirstControlId);
         }
         EXPECT_EQ(order, (std::vector<int>{1, 3, 4, 5}));
         EXPECT_TRUE(GetNextDlgTabItem(dialog, ControlOf(dialog, 5), FALSE) ==
                     ControlOf(dialog, 1));
         // The user chooses the first row of the combo box.
         SendMessageW(ControlOf(dialog, 1), CB_SETCURSEL, 0, 0);
         PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(kFirstControlId + 1, CBN_SELCHANGE),
                      reinterpret_cast<LPARAM>(ControlOf(dialog, 1)));
       },
       [&](HWND dialog) {
         EXPECT_EQ(f.form.At("cboProject").text, std::string("Alpha"));
         SetFocus(ControlOf(dialog, 3));
         PostMessageW(ControlOf(dialog, 3), WM_KEYDOWN, VK_RETURN, 0);
       }});
  EXPECT_TRUE(closedItself);
  EXPECT_EQ(f.log, (std::vector<std::string>{"cboProject.Click", "save"}));
  EXPECT_TRUE(f.form.Unloaded());
}

TEST(FormDialog, EscClicksTheCancelButton) {
  FieldsForm f;
  const bool closedItself =
      ShowAndDrive(f.form, {[&](HWND dialog) {
                     SetFocus(ControlOf(dialog, 3));
                     PostMessageW(ControlOf(dialog, 3), WM_KEYDOWN, VK_ESCAPE, 0);
                   }});
  EXPECT_TRUE(closedItself);
  EXPECT_EQ(f.log, std::vector<std::string>{"cancel"});
  EXPECT_EQ(f.closeModes, std::vector<int32_t>{platform::kCloseByCode});  // Unload in the handler
}

TEST(FormDialog, QueryCloseCanKeepTheDialogOpen) {
  FieldsForm f;
  f.keepOpen = true;
  const bool closedItself =
      ShowAndDrive(f.form, {[&](HWND dialog) { PostMessageW(dialog, WM_CLOSE, 0, 0); },
                            [&](HWND dialog) {
                              EXPECT_TRUE(IsWindowVisible(dialog));
                              EXPECT_TRUE(!f.form.Unloaded());
                              f.keepOpen = false;
                              PostMessageW(dialog, WM_CLOSE, 0, 0);
                            }});
  EXPECT_TRUE(closedItself);
  EXPECT_TRUE(f.form.Unloaded());
  EXPECT_EQ(f.closeModes,
            (std::vector<int32_t>{platform::kCloseByControlMenu, platform::kCloseByControlMenu}));
  EXPECT_TRUE(f.log.empty());
}

}  // namespace
}  // namespace qvx::winetest
