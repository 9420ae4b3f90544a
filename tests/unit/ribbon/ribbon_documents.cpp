#include "unit/ribbon/ribbon_documents.h"

#include <functional>

#include "apps/qvx-sim/world.h"
#include "core/host_constants.h"
#include "sim/fake_object.h"
#include "sim/folder.h"
#include "sim/views.h"
#include "views/view_names.h"
#include "views/view_provisioning.h"

namespace qvx::testing {
namespace {

using scenario::World;

struct SettingsCase {
  const char* name;
  std::function<void(World&)> before;  // before the host connects
  std::function<void(World&)> after;   // once connected
};

void AllCustomFieldsActive(World& w) {
  for (const char* flag :
       {"CustomList1Active", "CustomList2Active", "CustomList3Active", "CustomList4Active"}) {
    w.registry().SetString(scenario::kSettingsKey, flag, "-1");
  }
  w.registry().SetString(scenario::kSettingsKey, "CustomFieldsTitle", "Billing");
  w.registry().SetString(scenario::kSettingsKey, "CustomField1List", "North\r\nSouth");
}

// GetContentXML's answer for a views menu of that id, as the host asks it.
std::string MenuContent(World& world, std::string_view id) {
  std::vector<Variant> args{MakeControl(id)};
  Variant result;
  std::optional<Failure> failure;
  world.addin().InvokeCallback("GetContentXML", args, result, failure);
  return result.ToText();
}

}  // namespace

Variant MakeControl(std::string_view id, const Object& context, std::string_view tag) {
  auto control = std::make_shared<sim::FakeObject>("IRibbonControl");
  control->ReadOnly("Id", Variant(id))
      .ReadOnly("Context", context.IsNothing() ? Variant() : Variant(context))
      .ReadOnly("Tag", Variant(tag));
  return control->AsVariant();
}

const std::vector<std::string>& AnsweredRibbonIds() {
  static const std::vector<std::string> ids = {
      "Microsoft.Outlook.Explorer", "Microsoft.Outlook.Task", "Microsoft.Outlook.Appointment",
      "Microsoft.Outlook.MeetingRequest.Read"};
  return ids;
}

std::vector<RibbonDocument> EveryRibbonDocument() {
  const std::vector<SettingsCase> settings = {
      {"no-settings", [](World&) {},
       [](World& w) { w.addin().state().main.objMySettings.reset(); }},
      {"default", [](World&) {}, [](World&) {}},
      {"all-fields", AllCustomFieldsActive, [](World&) {}},
  };
  std::vector<RibbonDocument> documents;
  for (const SettingsCase& c : settings) {
    for (const char* version : {"12.0.6425.1000", "14.0.7268.5000", "16.0.0.0"}) {
      World world;
      world.host().SetVersion(version);
      c.before(world);
      world.addin().OnConnection(world.host().Application(), 1, Object());
      c.after(world);
      for (const std::string& id : AnsweredRibbonIds()) {
        const std::string major(version, std::string_view(version).find('.'));
        documents.push_back(
            {std::string(c.name) + "-" + major + "-" + id, id, world.addin().GetCustomUI(id)});
      }
    }
  }
  return documents;
}

std::vector<RibbonDocument> EveryViewsMenuDocument() {
  World world;
  world.registry().SetString(scenario::kSettingsKey, "ProjectTitle", "Client");
  world.addin().OnConnection(world.host().Application(), 1, Object());
  world.addin().OnStartupComplete();
  auto calendar = world.host().Calendar();
  world.host().OpenExplorer(calendar);
  calendar->views().Add("My week", host::olCalendarView, 0);
  AddinState& s = world.addin().state();
  LoadView(s, calendar->AsObject(), "Client", GetViewResName(s, "Client"));
  std::vector<RibbonDocument> documents;
  for (const char* id :
       {"dnViewsCal", "dnViewsCalTable", "dnViewsTask", "dnViewsAppointment",
        "dnViewsRecurringAppointment", "dnViewsTaskList", "dnViewsTaskDaily", "cboProjectCal"}) {
    documents.push_back({std::string("views-menu-") + id, id, MenuContent(world, id)});
  }
  return documents;
}

}  // namespace qvx::testing
