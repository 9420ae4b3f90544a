// Where the ribbon exists, and how a control id carries its context.
//
// An explorer control's id is a stem followed by the suffix of its context,
// nothing between ("cboTask" + "TaskList" = "cboTaskTaskList"); an inspector
// control's id is the bare stem. All explorer contexts share one set of
// values, so a callback only asks whether an id is the bare stem (an
// inspector) or one of its seven suffixed forms (the explorer). Ids are
// compared whole and ordinally, never by prefix: "cboTaskTask" is the Task
// explorer's activity drop-down, not the inspector's "cboTask".
//
//   IsSuffixedForm("cboField2CalTable", "cboField2");  // true
//   IsSuffixedForm("cboTaskTask", "cboTask");          // true
//   IsSuffixedForm("cboTask", "cboTask");              // false: the inspector's
#pragma once

#include <array>
#include <string_view>

namespace qvx {

// One explorer context: its id suffix, the built-in tab (and contextual tab
// set, if any) that shows its groups, the ids of its main and custom fields
// groups, and the built-in group both are inserted before.
struct ExplorerRibbonContext {
  std::string_view suffix;
  std::string_view tabMso;
  std::string_view tabSetMso;  // empty for an ordinary tab
  std::string_view mainGroupId;
  std::string_view customFieldsGroupId;
  std::string_view insertBeforeMso;
};

// In the order the explorer document holds them: the three tabs, then the
// four contextual tab sets.
inline constexpr std::array<ExplorerRibbonContext, 7> kExplorerRibbonContexts{{
    {"Cal", "TabCalendar", "", "KRPExplorerCalendar", "KRPCustomFieldsGroupCal",
     "GroupCalendarNew"},
    {"CalTable", "TabCalendarTableView", "", "KRPExplorerCalendarTable",
     "KRPCustomFieldsGroupCalTable", "GroupCalendarNew"},
    {"Task", "TabTasks", "", "KRPExplorerTask", "KRPCustomFieldsGroupTask", "GroupTasksNew"},
    {"Appointment", "TabAppointment", "TabSetAppointment", "KRPExplorerAppointment",
     "KRPCustomFieldsGroupAppointment", "GroupAppointmentActions"},
    {"RecurringAppointment", "TabRecurringAppointment", "TabSetReccurringAppointment",
     "KRPExplorerRecurringAppointment", "KRPCustomFieldsGroupRecurringAppointment",
     "GroupRecurringAppointmentActions"},
    {"TaskList", "TabTaskList", "TabSetToDoBar", "KRPExplorerTaskList",
     "KRPCustomFieldsGroupTaskList", "GroupTaskOpen"},
    {"TaskDaily", "TabDailyTaskList", "TabSetDailyTaskList", "KRPExplorerTaskDaily",
     "KRPCustomFieldsGroupTaskDaily", "GroupTaskOpen"},
}};

// Whether `id` is exactly `stem` followed by one of the seven suffixes.
bool IsSuffixedForm(std::string_view id, std::string_view stem) noexcept;

// Whether `id` is `stem` itself or one of its suffixed forms.
bool IsFamily(std::string_view id, std::string_view stem) noexcept;

}  // namespace qvx
