// The All Project Fields dialog as a real Win32 dialog: it opens as a window
// showing the item's values and the model's enabled state, refuses letters in
// the numeric fields key by key, and Save writes the item. Cancel, and a
// reported item under DontAllowChangesToReportedItem, are the fields_dialog
// scenarios'; the dialog's Esc and close box are FormDialog's.
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

TEST(FieldsDialog, OpensAsAWindowAndSaveWritesWhatWasTyped) {
  WriteSettings({{L"DBChoice", L"1"},
                 {L"MyProjectsTasks", L"Alpha,5,,:Design,;Review,\r\nBeta,8,,:Build,"},
                 {L"CustomField9Active", L"-1"},
                 {L"CustomField9Name", L"Hours"}});
  LocalAddin local;
  auto item = local.host.AddAppointment("Planning", DateSerial(2026, 3, 2), DateSerial(2026, 3, 3));
  item->UserProperties().Set("ProjectValue", 1, Variant("Alpha"));  // olText
  frmFields form{local.s};
  form.LoadFields(item->AsObject());
  EXPECT_EQ(form.Caption(), std::string("All Project Fields"));
  form.SetCaption("Test: " + form.Caption());  // the watcher leaves it to the test
  const bool closedItself =
      ShowAndDrive(form, {[&](HWND dialog) {
                            EXPECT_TRUE(TextOf(dialog) == L"Test: All Project Fields");
                            EXPECT_TRUE(TextOf(ControlOf(dialog, form, "txtReportedID")) ==
                                        L"Not Reported Yet!");
                            EXPECT_TRUE(TextOf(ControlOf(dialog, form, "lblField9")) == L"Hours");
                            EXPECT_TRUE(TextOf(ControlOf(dialog, form, "cboProject")) == L"Alpha");
                            EXPECT_TRUE(IsWindowEnabled(ControlOf(dialog, form, "txtField9")));
                            EXPECT_TRUE(!IsWindowEnabled(ControlOf(dialog, form, "txtField10")));
                            HWND hours = ControlOf(dialog, form, "txtField9");
                            SetFocus(hours);
                            for (const wchar_t key : {L'4', L'x', L'-', L'2', L'.', L'5', L'\b'}) {
                              PostMessageW(hours, WM_CHAR, key, 0);
                            }
                          },
                          [&](HWND dialog) {
                            EXPECT_TRUE(TextOf(ControlOf(dialog, form, "txtField9")) == L"42");
                            PostClick(dialog, ControlOf(dialog, form, "cmdSave"));
                          }});
  EXPECT_TRUE(closedItself);
  EXPECT_TRUE(form.Unloaded());
  const auto property = [&](std::string_view name) {
    auto found = item->UserProperties().Find(name);
    return found ? found->value().ToText() : std::string("(none)");
  };
  EXPECT_EQ(property("Field9Value"), std::string("42"));
  EXPECT_EQ(property("ProjectValue"), std::string("Alpha"));
  EXPECT_TRUE(local.failures->empty());
  EXPECT_TRUE(Watcher().Take().empty());
}

}  // namespace qvx::winetest
