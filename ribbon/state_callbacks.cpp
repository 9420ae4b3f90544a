#include "ribbon/state_callbacks.h"

#include <string_view>

#include "platform/user_interface.h"
#include "ribbon/inspector_pools.h"
#include "ribbon/ribbon_contexts.h"
#include "ribbon/ribbon_control.h"
#include "settings/my_settings.h"
#include "state/addin_state.h"
#include "support/app_texts.h"

namespace qvx {
namespace {

constexpr const char* kFieldStems[] = {"cboField1", "cboField2", "cboField3", "cboField4"};

bool IsOneOf(std::string_view id, std::initializer_list<std::string_view> ids) {
  for (const std::string_view candidate : ids) {
    if (id == candidate) return true;
  }
  return false;
}

const std::string& CustomListName(const cMySettings& settings, int field) {
  switch (field) {
    case 1:
      return settings.CustomList1Name;
    case 2:
      return settings.CustomList2Name;
    case 3:
      return settings.CustomList3Name;
    default:
      return settings.CustomList4Name;
  }
}

bool StandardPoolFlag(AddinState& s, const Variant& control, std::string_view name) {
  return GetRibbonValueStandardTB(s, ControlContext(control), name).ToBoolean();
}

}  // namespace

std::string getLabel(AddinState& s, const Variant& control) noexcept {
  return TrappedResult<std::string>(s, "Addin.getLabel", [&](Line& line, std::string& result) {
    line = 10;
    const std::string id = ControlId(control);
    const ExplorerRibbonValues& explorer = s.ribbon.explorer;
    line = 20;
    for (int field = 1; field <= 4; ++field) {
      if (IsFamily(id, kFieldStems[field - 1])) {
        result = CustomListName(s.main.Settings(), field);
        return;
      }
    }
    line = 30;
    if (IsFamily(id, "cboStaticFields")) {
      result = "All Fields...";
    } else if (IsFamily(id, "cboProject")) {
      result = s.main.Settings().ProjectTitle;
    } else if (IsFamily(id, "cboTask")) {
      result = s.main.Settings().ActivityTitle;
    } else if (id == "cmdReport") {
      line = 40;
      result =
          GetRibbonValueStandardTB(s, ControlContext(control), "REPORT_BUTTON_INSPECTOR_CAPTION")
              .ToText();
    } else if (IsOneOf(id, {"cmdContextReportCal", "cmdContextReportTask"}) ||
               IsSuffixedForm(id, "cmdReport")) {
      result = explorer.REPORT_BUTTON_CAPTION;
    } else if (id == "cmdWithdrawReport") {
      line = 50;
      result =
          GetRibbonValueStandardTB(s, ControlContext(control), "WITHDRAW_BUTTON_INSPECTOR_CAPTION")
              .ToText();
    } else if (IsOneOf(id, {"cmdContextWithdrawReportCal", "cmdContextWithdrawReportTask"}) ||
               IsSuffixedForm(id, "cmdWithdrawReport")) {
      result = explorer.WITHDRAW_BUTTON_CAPTION;
    }
  });
}

bool GetEnabled(AddinState& s, const Variant& control) noexcept {
  return TrappedResult<bool>(s, "Addin.GetEnabled", [&](Line& line, bool& result) {
    line = 10;
    const std::string id = ControlId(control);
    ExplorerRibbonValues& explorer = s.ribbon.explorer;
    line = 20;
    if (id == "cboProject") {
      result = StandardPoolFlag(s, control, "PROJECT_INSPECTOR_ENABLED");
    } else if (IsSuffixedForm(id, "cboProject")) {
      result = explorer.PROJECT_ENABLED;
    } else if (id == "cboTask") {
      result = StandardPoolFlag(s, control, "ACTIVITY_INSPECTOR_ENABLED");
    } else if (IsSuffixedForm(id, "cboTask")) {
      result = explorer.ACTIVITY_ENABLED;
    } else {
      line = 30;
      for (int field = 1; field <= 4; ++field) {
        if (id == kFieldStems[field - 1]) {
          result =
              GetRibbonValueCustomTB(s, ControlContext(control),
                                     "CUSTOM_FIELD" + std::to_string(field) + "_INSPECTOR_ENABLED")
                  .ToBoolean();
          return;
        }
      }
      line = 40;
      for (int field = 1; field <= 4; ++field) {
        if (IsSuffixedForm(id, kFieldStems[field - 1])) {
          result = explorer.CustomFieldEnabled(field);
          return;
        }
      }
    }
  });
}

bool GetVisible(AddinState& s, const Variant&) {
  return s.ribbon.explorer.COMMON_CONTROLS_VISIBLE;
}

bool GetGroupVisibility(AddinState& s, const Variant& control) {
  const std::string id = ControlId(control);
  const ExplorerRibbonValues& explorer = s.ribbon.explorer;
  if (IsOneOf(id, {"KRPExplorerCalendar", "KRPExplorerCalendarTable", "KRPExplorerAppointment",
                   "KRPExplorerRecurringAppointment"})) {
    return explorer.GROUP_CALENDAR_VISIBLE;
  }
  if (IsOneOf(id,
              {"KRPCustomFieldsGroupCal", "KRPCustomFieldsGroupCalTable",
               "KRPCustomFieldsGroupAppointment", "KRPCustomFieldsGroupRecurringAppointment"})) {
    return explorer.GROUP_CALENDAR_VISIBLE && explorer.CUSTOM_FIELDS_VISIBLE;
  }
  if (IsOneOf(id, {"KRPExplorerTask", "KRPExplorerTaskList", "KRPExplorerTaskDaily"})) {
    return explorer.GROUP_TASK_VISIBLE;
  }
  if (IsOneOf(id, {"KRPCustomFieldsGroupTask", "KRPCustomFieldsGroupTaskList",
                   "KRPCustomFieldsGroupTaskDaily"})) {
    return explorer.CUSTOM_FIELDS_VISIBLE && explorer.GROUP_TASK_VISIBLE;
  }
  if (IsOneOf(id, {"KRPAppointmentInspector", "KRPInspectorCustomFieldsGroupAppointment"})) {
    return StandardPoolFlag(s, control, "GROUP_CALENDAR_INSPECTOR_VISIBLE");
  }
  if (IsOneOf(id, {"KRPTaskInspector", "KRPInspectorCustomFieldsGroupTask"})) {
    return StandardPoolFlag(s, control, "GROUP_TASK_INSPECTOR_VISIBLE");
  }
  s.ui().MessageBox("Not implemented (GetGroupVisibility)" + id, platform::msgbox::kOkOnly,
                    kMessageTitle);
  return false;
}

bool ShowCustomFields(AddinState& s, const Variant& control) {
  return s.ribbon.explorer.CUSTOM_FIELDS_VISIBLE && GetGroupVisibility(s, control);
}

bool GetReportButtonVisible(AddinState& s, const Variant&) {
  return s.ribbon.explorer.REPORT_BUTTON_VISIBLE;
}

bool GetWithdrawButtonVisible(AddinState& s, const Variant&) {
  return s.ribbon.explorer.WITHDRAW_BUTTON_VISIBLE;
}

bool GetReportButtonVisibleInspector(AddinState& s, const Variant& control) {
  return StandardPoolFlag(s, control, "REPORT_BUTTON_INSPECTOR_VISIBLE");
}

bool GetWithdrawButtonVisibleInspector(AddinState& s, const Variant& control) {
  return StandardPoolFlag(s, control, "WITHDRAW_BUTTON_INSPECTOR_VISIBLE");
}

bool GetCustomFieldVisibility(AddinState& s, int field) {
  return s.ribbon.explorer.CustomFieldVisible(field);
}

bool GetCustomFieldVisibilityInspector(AddinState& s, const Variant& control, int field) {
  return GetRibbonValueCustomTB(s, ControlContext(control),
                                "blnCustomField" + std::to_string(field) + "VisibleInspector")
      .ToBoolean();
}

}  // namespace qvx
