// The Win32 view of a form model, shown with the All Project Fields dialog: it
// opens as a window showing the item's values and the model's enabled state
// in the system's dialog font, passes the user's choice in a combo box to the
// model's Click, refuses letters in the numeric fields key by key (a key a
// KeyPress handler swallows never reaches the box), and Save writes the item.
// Cancel, and a reported item under DontAllowChangesToReportedItem, are the
// fields_dialog scenarios'.
#include "platform/win32/win32_api.h"

#include <string>

#include "core/dates.h"
#include "harness/check.h"
#include "harness/dialog_driver.h"
#include "harness/local_addin.h"
#include "harness/registry_keys.h"
#include "harness/ui_watcher.h"
#include "reporting/fields_form.h"
#include "sim/appointment.h"
#include "sim/user_properties.h"

namespace qvx::winetest {

TEST(FieldsDialog, OpensAsAWindowAndSaveWritesWhatWasChosenAndTyped) {
  WriteSettings({{L"DBChoice", L"1"},
                 {L"MyProjectsTasks", L"Alpha,5,,:Design,;Review,\r\nBeta,8,,:Build,"},
                 {L"CustomField9Active", L"-1"},
                 {L"CustomField9Name", L"Hours"}});
  LocalAddin local;
  auto item = local.host.AddAppointment("Planning", DateSerial(2026, 3, 2), DateSerial(2026, 3, 3));
  item->UserProperties().Set("ProjectValue", 1, Variant("Alpha"));  // olText
  frmFields form{local.s};
  form.LoadFields(item->AsObject());
  form.SetCaption("Test: " + form.Caption());  // the watcher leaves it to the test
  const auto shown = [&](HWND dialog) {
    EXPECT_TRUE(TextOf(dialog) == L"Test: All Project Fields");
    EXPECT_TRUE(TextOf(ControlOf(dialog, form, "txtReportedID")) == L"Not Reported Yet!");
    HWND hours = ControlOf(dialog, form, "txtField9");
    EXPECT_TRUE(IsWindowEnabled(hours));
    EXPECT_TRUE(!IsWindowEnabled(ControlOf(dialog, form, "txtField10")));
    // The system's dialog font, on the dialog and its controls alike.
    const auto font = SendMessageW(dialog, WM_GETFONT, 0, 0);
    EXPECT_TRUE(font != 0 && SendMessageW(hours, WM_GETFONT, 0, 0) == font);
    // The user chooses Beta, and letters never reach the numeric box.
    HWND project = ControlOf(dialog, form, "cboProject");
    SendMessageW(project, CB_SELECTSTRING, WPARAM(-1), reinterpret_cast<LPARAM>(L"Beta"));
    PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(project), CBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(project));
    SetFocus(hours);
    for (const wchar_t key : {L'4', L'x', L'-', L'2', L'.', L'5', L'\b'}) {
      PostMessageW(hours, WM_CHAR, key, 0);
    }
  };
  EXPECT_TRUE(ShowAndDrive(form, {shown, [&](HWND dialog) {
                                    EXPECT_TRUE(TextOf(ControlOf(dialog, form, "txtField9")) ==
                                                L"42");
                                    PostClick(dialog, ControlOf(dialog, form, "cmdSave"));
                                  }}));
  EXPECT_TRUE(form.Unloaded());
  const auto property = [&](std::string_view name) {
    auto found = item->UserProperties().Find(name);
    return found ? found->value().ToText() : std::string("(none)");
  };
  EXPECT_EQ(property("Field9Value"), std::string("42"));
  EXPECT_EQ(property("ProjectValue"), std::string("Beta"));
  EXPECT_TRUE(local.failures->empty());
  EXPECT_TRUE(Watcher().Take().empty());
}

}  // namespace qvx::winetest
