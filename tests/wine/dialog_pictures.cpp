// The add-in's real dialogs, each brought up through the DLL as a host would
// bring it up, and left open for tools/render-dialogs.sh to photograph.
//
//   wine qvx_wine_tests.exe --show error-report
//
// Each returns when the dialog is closed (the script ends the program).
#include "dialog_pictures.h"

#include <cstdio>
#include <functional>
#include <map>

#include <utility>
#include "core/dates.h"
#include "harness/addin_session.h"
#include "harness/local_addin.h"
#include "harness/registry_keys.h"
#include "reporting/fields_form.h"
#include "sim/appointment.h"
#include "sim/user_properties.h"

namespace qvx::winetest {
namespace {

// The error report of a failure while the add-in starts.
void ErrorReport() {
  WriteSettings({{L"DBChoice", L"1"}});
  AddinSession session;
  session.world().FailAt("ActiveExplorer", static_cast<int32_t>(0x8004010F),
                         "The explorer could not be reached.");
  session.Connect();
  session.StartupComplete();
}

// All Project Fields on an item tagged with a project, an activity and two
// custom fields, under titles the companion set.
void Fields() {
  WriteSettings(
      {{L"DBChoice", L"1"},
       {L"MyProjectsTasks", L"Website relaunch,5,,:Design,;Review,\r\nSupport,8,,:Calls,"},
       {L"ProjectTitle", L"Project"},
       {L"CustomList1Name", L"Region"},
       {L"CustomList1Active", L"-1"},
       {L"CustomField1List", L"North\r\nSouth"},
       {L"CustomField5Name", L"Ticket"},
       {L"CustomField5Active", L"-1"},
       {L"CustomField9Name", L"Hours billed"},
       {L"CustomField9Active", L"-1"}});
  LocalAddin local;
  auto item = local.host.AddAppointment("Planning", DateSerial(2026, 3, 2), DateSerial(2026, 3, 3));
  for (const auto& [name, value] : {std::pair{"ProjectValue", "Website relaunch"},
                                    {"ActivityValue", "Review"},
                                    {"Field1Value", "North"},
                                    {"Field5Value", "QVX-1024"},
                                    {"Field9Value", "3"}}) {
    item->UserProperties().Set(name, 1, Variant(value));
  }
  frmFields form(local.s);
  form.LoadFields(item->AsObject());
  local.s.ui().ShowModal(form);
}

// The about box, from the backstage's About task.
void About() {
  WriteSettings({{L"DBChoice", L"1"}});
  AddinSession session;
  session.Start();
  session.ClickRibbon("cmdAbout");
}

}  // namespace

int ShowDialog(const std::string& name) {
  const std::map<std::string, std::function<void()>> dialogs = {
      {"error-report", ErrorReport}, {"fields", Fields}, {"about", About}};
  const auto it = dialogs.find(name);
  if (it == dialogs.end()) {
    std::printf("no dialog \"%s\"; known: error-report, fields, about\n", name.c_str());
    return 2;
  }
  it->second();
  return 0;
}

}  // namespace qvx::winetest
