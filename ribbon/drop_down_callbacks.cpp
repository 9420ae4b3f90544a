#include "ribbon/drop_down_callbacks.h"

#include <memory>

#include "reporting/tag_values.h"
#include "ribbon/inspector_pools.h"
#include "ribbon/ribbon_contexts.h"
#include "ribbon/ribbon_control.h"
#include "ribbon/ribbon_invalidation.h"
#include "settings/settings_lists.h"
#include "settings/single_list.h"
#include "settings/tasks_per_project.h"
#include "state/addin_state.h"

namespace qvx {
namespace {

constexpr const char* kFieldStems[] = {"cboField1", "cboField2", "cboField3", "cboField4"};

std::string InspectorFieldValueName(int field) {
  return "SELECTED_INSPECTOR_CUSTOM_FIELD" + std::to_string(field) + "_VALUE";
}

// The project an inspector's drop-downs show.
std::string InspectorProject(AddinState& s, const Object& inspector) {
  return GetRibbonValueStandardTB(s, inspector, "SELECTED_INSPECTOR_PROJECT_VALUE").ToText();
}

}  // namespace

int16_t GetItemCount(AddinState& s, const Variant& control) {
  const std::string id = ControlId(control);
  size_t n = 0;
  if (IsFamily(id, "cboProject")) {
    n = ProjectList(s).dicList.Count();
  } else if (id == "cboTask") {
    const auto activities = FindActivities(s, InspectorProject(s, ControlContext(control)));
    if (activities) n = activities->dicList.Count();
  } else if (IsSuffixedForm(id, "cboTask")) {
    const auto activities = FindActivities(s, s.ribbon.explorer.SELECTED_PROJECT_VALUE);
    if (activities) n = activities->dicList.Count();
  } else {
    for (int field = 1; field <= 4; ++field) {
      if (IsFamily(id, kFieldStems[field - 1])) {
        n = CustomFieldList(s, field).dicList.Count();
        break;
      }
    }
  }
  return Variant(static_cast<int32_t>(n + 1)).ToInteger();
}

std::string GetItemLabel(AddinState& s, const Variant& control, int16_t index) noexcept {
  return TrappedResult<std::string>(s, "Addin.GetItemLabel", [&](Line& line, std::string& result) {
    line = 10;
    const std::string id = ControlId(control);
    line = 20;
    if (IsFamily(id, "cboProject")) {
      result = ProjectList(s).GetItem(s, index);
      return;
    }
    line = 30;
    if (IsSuffixedForm(id, "cboTask")) {
      if (auto activities = FindActivities(s, s.ribbon.explorer.SELECTED_PROJECT_VALUE)) {
        result = activities->GetItem(s, index);
      }
      return;
    }
    line = 40;
    for (int field = 1; field <= 4; ++field) {
      if (IsFamily(id, kFieldStems[field - 1])) {
        result = CustomFieldList(s, field).GetItem(s, index);
        return;
      }
    }
    line = 50;
    if (id == "cboTask") {
      if (auto activities = FindActivities(s, InspectorProject(s, ControlContext(control)))) {
        result = activities->GetItem(s, index);
      }
    }
  });
}

int16_t GetSelectedItemIndex(AddinState& s, const Variant& control) noexcept {
  return TrappedResult<int16_t>(s, "Addin.GetSelectedItemIndex", [&](Line& line, int16_t& result) {
    line = 10;
    const std::string id = ControlId(control);
    const ExplorerRibbonValues& explorer = s.ribbon.explorer;
    line = 20;
    if (id == "cboProject") {
      const Object inspector = ControlContext(control);
      result = ProjectList(s).getItemIndex(s, InspectorProject(s, inspector));
      return;
    }
    line = 30;
    if (id == "cboTask") {
      const Object inspector = ControlContext(control);
      if (auto activities = FindActivities(s, InspectorProject(s, inspector))) {
        const Variant activity =
            GetRibbonValueStandardTB(s, inspector, "SELECTED_INSPECTOR_ACTIVITY_VALUE");
        result = activities->getItemIndex(s, activity.ToText());
      }
      return;
    }
    line = 40;
    for (int field = 1; field <= 4; ++field) {
      if (id == kFieldStems[field - 1]) {
        const Variant value =
            GetRibbonValueCustomTB(s, ControlContext(control), InspectorFieldValueName(field));
        result = CustomFieldList(s, field).getItemIndex(s, value.ToText());
        return;
      }
    }
    line = 50;
    if (IsSuffixedForm(id, "cboProject")) {
      result = ProjectList(s).getItemIndex(s, explorer.SELECTED_PROJECT_VALUE);
      return;
    }
    line = 60;
    if (IsSuffixedForm(id, "cboTask")) {
      if (auto activities = FindActivities(s, explorer.SELECTED_PROJECT_VALUE)) {
        result = activities->getItemIndex(s, explorer.SELECTED_ACTIVITY_VALUE);
      }
      return;
    }
    line = 70;
    for (int field = 1; field <= 4; ++field) {
      if (IsSuffixedForm(id, kFieldStems[field - 1])) {
        result = CustomFieldList(s, field).getItemIndex(
            s, s.ribbon.explorer.SelectedCustomFieldValue(field));
        return;
      }
    }
  });
}

void OnActionDropDown(AddinState& s, const Variant& control, std::string_view,
                      int16_t selectedIndex) noexcept {
  Trapped(s, "Addin.OnActionDropDown", [&](Line& line) {
    line = 10;
    const std::string id = ControlId(control);
    ExplorerRibbonValues& explorer = s.ribbon.explorer;
    line = 20;
    if (id == "cboProject") {
      const std::string value = ProjectList(s).GetItem(s, selectedIndex);
      SetInspectorRibbonValueStandardTB(s, ControlContext(control),
                                        "SELECTED_INSPECTOR_PROJECT_VALUE", Variant(value));
      Main::TagProjectValueToItem(s, value);
      subInvalidateInspectorActivity(s);
      return;
    }
    line = 30;
    if (id == "cboTask") {
      const Object inspector = ControlContext(control);
      std::string value;
      std::shared_ptr<cTasksPerProject> activities;
      IgnoreFailure(s.err, [&] { activities = FindActivities(s, InspectorProject(s, inspector)); });
      if (activities) {
        value = activities->GetItem(s, selectedIndex);
        SetInspectorRibbonValueStandardTB(s, inspector, "SELECTED_INSPECTOR_ACTIVITY_VALUE",
                                          Variant(value));
      }
      s.err.Clear();
      Main::TagTaskValueToItem(s, value);
      return;
    }
    line = 40;
    for (int16_t field = 1; field <= 4; ++field) {
      if (id == kFieldStems[field - 1]) {
        const std::string value = CustomFieldList(s, field).GetItem(s, selectedIndex);
        SetInspectorRibbonValueCustomTB(s, ControlContext(control), InspectorFieldValueName(field),
                                        Variant(value));
        Main::TagCustomFieldValueToItem(s, field, value);
        return;
      }
    }
    line = 50;
    if (IsSuffixedForm(id, "cboProject")) {
      explorer.SELECTED_PROJECT_VALUE = ProjectList(s).GetItem(s, selectedIndex);
      const std::string value = explorer.SELECTED_PROJECT_VALUE;  // tagging may change it
      Main::TagProjectValueToItem(s, value);
      subInvalidateActivityControls(s);
      return;
    }
    line = 60;
    if (IsSuffixedForm(id, "cboTask")) {
      if (auto activities = FindActivities(s, explorer.SELECTED_PROJECT_VALUE)) {
        explorer.SELECTED_ACTIVITY_VALUE = activities->GetItem(s, selectedIndex);
      }
      const std::string value = explorer.SELECTED_ACTIVITY_VALUE;
      Main::TagTaskValueToItem(s, value);
      return;
    }
    line = 70;
    for (int16_t field = 1; field <= 4; ++field) {
      if (IsSuffixedForm(id, kFieldStems[field - 1])) {
        const std::string value = CustomFieldList(s, field).GetItem(s, selectedIndex);
        explorer.SelectedCustomFieldValue(field) = value;
        Main::TagCustomFieldValueToItem(s, field, value);
        return;
      }
    }
  });
}

}  // namespace qvx
