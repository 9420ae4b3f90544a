#include "addin/inspectors_client.h"

#include "commandbars/custom_fields_toolbar.h"
#include "commandbars/standard_toolbar.h"
#include "core/text.h"
#include "reporting/item_filters.h"
#include "settings/my_settings.h"
#include "state/addin_state.h"

namespace qvx {
namespace {

constexpr std::string_view kTaskClass = "IPM.TASK";
constexpr std::string_view kAppointmentClass = "IPM.APPOINTMENT";
constexpr std::string_view kExceptionClass = "IPM.OLE.CLASS.{00061055-0000-0000-C000-000000000046}";

bool Contains(const std::string& text, std::string_view part) {
  return text.find(part) != std::string::npos;
}

// The item's Parent taken as a folder: anything else fails as a type mismatch.
Object ParentFolder(const Object& item) {
  Object parent = item.Get("Parent").ToObject();
  if (parent && !Contains(UCase(parent.TypeName()), "FOLDER")) {
    throw Failure::Runtime(err::kTypeMismatch);
  }
  return parent;
}

// Enters the bar under the key; a bar of another inspector on the same item goes.
template <class Bar>
void Enter(OrderedDictionary<std::shared_ptr<Bar>>& bars, const std::string& key,
           std::shared_ptr<Bar> bar) {
  if (bars.Exists(key)) bars.Remove(key);
  bars.Add(key, std::move(bar));
}

// Calls UpdateToolbar on the entry under the key, once per entry and per open
// inspector showing that item.
template <class Bar>
void RefreshEntries(AddinState& s, OrderedDictionary<std::shared_ptr<Bar>>* bars,
                    const std::string& entryId) {
  if (!bars || bars->Count() == 0) return;
  const Object inspectors = s.main.objOutlook.Get("Inspectors").ToObject();
  for (size_t round = 0, n = bars->Count(); round < n; ++round) {
    for (const Variant& each : inspectors.Enumerate()) {
      const std::string shown =
          Quietly(s.err, [&] {
            return each.ToObject().Get("CurrentItem").ToObject().Get("EntryID").ToText();
          }).value_or(std::string());
      if (shown != entryId) continue;
      std::shared_ptr<Bar> bar;
      IgnoreFailure(s.err, [&] {
        if (auto* found = bars->Find(entryId)) bar = *found;
      });
      if (bar) bar->UpdateToolbar();
    }
  }
}

}  // namespace

cInspectors::cInspectors(AddinState& s)
    : colInspectorsTB(std::make_unique<OrderedDictionary<std::shared_ptr<cStandardTB>>>()),
      colInspectorsCustomFieldsTB(
          std::make_unique<OrderedDictionary<std::shared_ptr<cCustomFieldsTB>>>()),
      ouisInspectors(*this, s),
      s_(s) {
  ouisInspectors.On("NewInspector", "Inspectors.NewInspector",
                    [](cInspectors& self, Line& line, EventArgs& args) {
                      self.ouisInspectors_NewInspector(
                          line, args.empty() ? Object{} : args[0].ToObject());
                    });
}

cInspectors::~cInspectors() {
  Trapped(s_, "Inspectors.Terminate", [&](Line& line) {
    line = 10;
    ouisInspectors.Release();
    line = 20;
    colInspectorsTB.reset();
    colInspectorsCustomFieldsTB.reset();
  });
}

void cInspectors::UpdateToolbarsOf(const std::string& entryId) noexcept {
  Trapped(s_, "Explorers.UpdateAllDisplayedToolbars", [&](Line& line) {
    line = 40;
    RefreshEntries(s_, colInspectorsTB.get(), entryId);
    line = 50;
    RefreshEntries(s_, colInspectorsCustomFieldsTB.get(), entryId);
  });
}

void cInspectors::ForgetToolbar(std::string_view entryId, bool customFields) noexcept {
  // The bar may be running its Close: the event holds it until that returns.
  if (customFields) {
    if (colInspectorsCustomFieldsTB) colInspectorsCustomFieldsTB->Remove(entryId);
  } else if (colInspectorsTB) {
    colInspectorsTB->Remove(entryId);
  }
}

void cInspectors::ouisInspectors_NewInspector(Line& line, const Object& inspector) {
  AddinState& s = s_;
  line = 10;
  const Object item = inspector.Get("CurrentItem").ToObject();
  const std::string messageClass = UCase(item.Get("MessageClass").ToText());
  line = 20;
  const bool task = Contains(messageClass, kTaskClass);
  const bool appointment = Contains(messageClass, kAppointmentClass);
  const bool exception = Contains(messageClass, kExceptionClass);
  if (!task && !appointment && !exception) return;
  line = 30;
  const cMySettings& settings = s.main.Settings();
  if (task && settings.AllowTaskItems == 0) return;
  if ((appointment || exception) && settings.AllowAppointmentItems == 0) return;
  line = 40;
  // A new item has no folder yet, and passes; so does an occurrence, whose
  // parent is its series and no folder.
  const Object folder = Quietly(s.err, [&] { return ParentFolder(item); }).value_or(Object());
  if (folder && !IsDefaultFolder(s, folder)) return;
  line = 50;
  const std::string entryId = item.Get("EntryID").ToText();
  auto standard = std::make_shared<cStandardTB>(s);
  standard->strPoolKey = entryId;
  standard->SetVariableValue("GROUP_CALENDAR_INSPECTOR_VISIBLE", Variant(true));
  standard->SetVariableValue("GROUP_TASK_INSPECTOR_VISIBLE", Variant(true));
  standard->oueCurrInspector.Set(inspector);
  standard->subAddButtons();
  standard->ShowFields(item);
  line = 60;
  Enter(*colInspectorsTB, entryId, standard);
  line = 70;
  if (!AreAllCustomFieldsActive(s)) return;
  auto custom = std::make_shared<cCustomFieldsTB>(s);
  custom->strPoolKey = entryId;
  custom->oueCurrInspector.Set(inspector);
  custom->subAddButtons();
  custom->ShowFields(item);
  line = 80;
  Enter(*colInspectorsCustomFieldsTB, entryId, custom);
}

}  // namespace qvx
