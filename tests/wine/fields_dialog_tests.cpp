// The All Project Fields dialog as a real Win32 dialog: it opens as a window
// showing the item's values, refuses letters in the numeric fields key by
// key, and closes by its buttons, Save writing the item, Cancel and Exit not.
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
namespace {

constexpr int32_t kText = 1;  // olText

void WriteFieldsSettings(const wchar_t* dontAllowChanges) {
  WriteSettings({{L"DBChoice", L"1"},
                 {L"MyProjectsTasks", L"Alpha,5,,:Design,;Review,\r\nBeta,8,,:Build,"},
                 {L"CustomField9Active", L"-1"},
                 {L"CustomField9Name", L"Hours"},
                 {L"DontAllowChangesToReportedItem", dontAllowChanges}});
}

// frmFields loaded on one appointment with these text properties, its
// caption marked so that the watcher leaves the dialog to the test.
struct FieldsOnItem {
  explicit FieldsOnItem(std::initializer_list<std::pair<const char*, const char*>> properties) {
    for (const auto& [name, value] : properties) {
      item->UserProperties().Set(name, kText, Variant(value));
    }
    form.LoadFields(item->AsObject());
    CHECK_EQ(form.Caption(), std::string("All Project Fields"));
    form.SetCaption("Test: " + form.Caption());
  }
  LocalAddin local;
  std::shared_ptr<sim::SimAppointment> item =
      local.host.AddAppointment("Planning", DateSerial(2026, 3, 2), DateSerial(2026, 3, 3));
  frmFields form{local.s};
};

std::string Property(sim::SimItem& item, std::string_view name) {
  auto property = item.UserProperties().Find(name);
  return property ? property->value().ToText() : std::string("(none)");
}

}  // namespace

WINE_TEST(FieldsDialog, OpensAsAWindowAndSaveWritesWhatWasTyped) {
  WriteFieldsSettings(L"0");
  FieldsOnItem f({{"ProjectValue", "Alpha"}});
  frmFields& form = f.form;
  auto& item = f.item;
  const bool closedItself = ShowAndDrive(
      form, {[&](HWND dialog) {
               CHECK(TextOf(dialog) == L"Test: All Project Fields");
               CHECK(TextOf(ControlOf(dialog, form, "txtReportedID")) == L"Not Reported Yet!");
               CHECK(TextOf(ControlOf(dialog, form, "lblField9")) == L"Hours");
               CHECK(TextOf(ControlOf(dialog, form, "cboProject")) == L"Alpha");
               CHECK(IsWindowEnabled(ControlOf(dialog, form, "txtField9")));
               CHECK(!IsWindowEnabled(ControlOf(dialog, form, "txtField10")));
               HWND hours = ControlOf(dialog, form, "txtField9");
               SetFocus(hours);
               for (const wchar_t key : {L'4', L'x', L'-', L'2', L'.', L'5', L'\b'}) {
                 PostMessageW(hours, WM_CHAR, key, 0);
               }
             },
             [&](HWND dialog) {
               CHECK(TextOf(ControlOf(dialog, form, "txtField9")) == L"42");
               PostClick(dialog, ControlOf(dialog, form, "cmdSave"));
             }});
  CHECK(closedItself);
  CHECK(form.Unloaded());
  CHECK_EQ(Property(*item, "Field9Value"), std::string("42"));
  CHECK_EQ(Property(*item, "ProjectValue"), std::string("Alpha"));
  CHECK(f.local.failures->empty());
  CHECK(Watcher().Take().empty());
  DeleteTree(kSettingsKey);
}

WINE_TEST(FieldsDialog, CancelClosesWithoutWriting) {
  WriteFieldsSettings(L"0");
  FieldsOnItem f({});
  frmFields& form = f.form;
  auto& item = f.item;
  const bool closedItself = ShowAndDrive(
      form, {[&](HWND dialog) {
               HWND hours = ControlOf(dialog, form, "txtField9");
               SetFocus(hours);
               PostMessageW(hours, WM_CHAR, L'7', 0);
             },
             [&](HWND dialog) { PostClick(dialog, ControlOf(dialog, form, "cmdCancel")); }});
  CHECK(closedItself);
  CHECK_EQ(Property(*item, "Field9Value"), std::string("(none)"));
  CHECK(f.local.failures->empty());
  DeleteTree(kSettingsKey);
}

WINE_TEST(FieldsDialog, AReportedItemUnderTheFlagOnlyShowsAndExitCloses) {
  WriteFieldsSettings(L"-1");
  FieldsOnItem f({{"ReportedID", "4711"}});
  frmFields& form = f.form;
  auto& item = f.item;
  const bool closedItself =
      ShowAndDrive(form, {[&](HWND dialog) {
                     CHECK(TextOf(ControlOf(dialog, form, "txtReportedID")) == L"4711");
                     CHECK(!IsWindowEnabled(ControlOf(dialog, form, "cmdSave")));
                     CHECK(!IsWindowEnabled(ControlOf(dialog, form, "cboProject")));
                     CHECK(TextOf(ControlOf(dialog, form, "cmdCancel")) == L"E&xit");
                     PostClick(dialog, ControlOf(dialog, form, "cmdCancel"));
                   }});
  CHECK(closedItself);
  CHECK_EQ(Property(*item, "ProjectValue"), std::string("(none)"));
  DeleteTree(kSettingsKey);
}

}  // namespace qvx::winetest
