#include "reporting/tag_dates.h"

#include <string>

#include "core/text.h"
#include "schema/item_schema.h"
#include "settings/my_settings.h"
#include "settings/tasks_per_project_list.h"
#include "state/addin_state.h"

namespace qvx::Actions {
namespace {

bool IsTask(const std::string& upperClass) {
  return InStr(upperClass, schema::kClassTask) != 0;
}

}  // namespace

bool IsUsableDate(DateValue date) noexcept {
  const int year = DecomposeDate(date).year;
  return year != 1899 && year != 4501;
}

void ApplyProjectStartFinishDateToTaggedItem(AddinState& s, const Object& objItem,
                                             std::string_view strProject) noexcept {
  Trapped(s, "Actions.ApplyProjectStartFinishDateToTaggedItem", [&](Line& line) {
    line = 10;
    const cMySettings& settings = s.main.Settings();
    // One of the two end settings alone, without the start setting, does nothing.
    const bool wanted =
        settings.UpdateStartDateWithProjectStartDate != 0 ||
        (settings.UpdateAppointmentEndDateWith != 0 && settings.UpdateTaskDueDateWith != 0);
    if (strProject.empty() || !wanted) return;
    line = 20;
    const auto* entry = settings.MyProjectsTasks->dicList.Find(strProject);
    line = 30;
    if (entry == nullptr || !*entry || !(*entry)->Project) return;
    const cProjectClient& project = *(*entry)->Project;
    line = 40;
    if (IsUsableDate(project.StartDate) && settings.UpdateStartDateWithProjectStartDate != 0) {
      AssignDateToItem(s, objItem, project.StartDate, true);
    }
    line = 50;
    if (!IsUsableDate(project.FinishDate)) return;
    line = 60;
    const std::string upperClass = UCase(objItem.Get("MessageClass").ToText());
    line = 70;
    if (IsTask(upperClass)) {
      if (settings.UpdateTaskDueDateWith != 0 && settings.TaskDueDateFrom == 0) {
        AssignDateToItem(s, objItem, project.FinishDate, false);
      }
    } else if (settings.UpdateAppointmentEndDateWith != 0 && settings.AppointmentEndDateFrom == 0) {
      AssignDateToItem(s, objItem, project.FinishDate, false);
    }
  });
}

void ApplyEndOrDueDateToTaggedItem(AddinState& s, const Object& objItem,
                                   std::string_view strProject,
                                   std::string_view strActivity) noexcept {
  Trapped(s, "Actions.ApplyEndOrDueDateToTaggedItem", [&](Line& line) {
    line = 10;
    const cMySettings& settings = s.main.Settings();
    if (settings.UpdateAppointmentEndDateWith == 0 && settings.UpdateTaskDueDateWith == 0) return;
    if (strProject.empty() || strActivity.empty()) return;
    line = 20;
    const auto* entry = settings.MyProjectsTasks->dicList.Find(strProject);
    if (entry == nullptr || !*entry) return;
    line = 30;
    const auto* activity = (*entry)->dicList.Find(strActivity);
    if (activity == nullptr) return;
    const DateValue due = activity->DueDate;
    line = 40;
    if (!IsUsableDate(due)) return;
    line = 50;
    const std::string upperClass = UCase(objItem.Get("MessageClass").ToText());
    line = 60;
    if (IsTask(upperClass)) {
      if (settings.UpdateTaskDueDateWith != 0 && settings.TaskDueDateFrom == 1) {
        AssignDateToItem(s, objItem, due, false);
      }
    } else if (settings.UpdateAppointmentEndDateWith != 0 && settings.AppointmentEndDateFrom == 1) {
      AssignDateToItem(s, objItem, due, false);
    }
  });
}

void AssignDateToItem(AddinState& s, const Object& objItem, DateValue dtDate,
                      bool blnStart) noexcept {
  Trapped(s, "Actions.AssignDateToItem", [&](Line& line) {
    line = 10;
    std::string upperClass;
    Quietly(s.err, [&] { upperClass = UCase(objItem.Get("MessageClass").ToText()); });
    line = 20;
    std::string_view field;
    if (IsTask(upperClass)) {
      field = blnStart ? "StartDate" : "DueDate";
    } else if (InStr(upperClass, schema::kClassAppointment) != 0 ||
               InStr(upperClass, schema::kClassAppointmentException) != 0) {
      field = blnStart ? "Start" : "End";
    }
    line = 30;
    if (!field.empty()) Quietly(s.err, [&] { objItem.Put(field, Variant(dtDate)); });
  });
}

}  // namespace qvx::Actions
