// The dates that a tag brings along: the project's start and finish, the
// activity's due date, put on an appointment's Start and End or a task's
// StartDate and DueDate as the settings ask.
//
// A catalogue date counts only if its year is neither 1899 (the empty date)
// nor 4501 (the host's none date). The "...From" settings pick the source of
// the end or due date: 0 the project's FinishDate, 1 the activity's DueDate.
#pragma once

#include <string_view>

#include "core/dates.h"
#include "core/object.h"

namespace qvx {
class AddinState;
}

namespace qvx::Actions {

// Start from the project's StartDate, end or due date from its FinishDate.
// Only with UpdateStartDateWithProjectStartDate set, or with both
// UpdateAppointmentEndDateWith and UpdateTaskDueDateWith set.
void ApplyProjectStartFinishDateToTaggedItem(AddinState& s, const Object& objItem,
                                             std::string_view strProject) noexcept;

// End or due date from the activity's DueDate, for an activity of a project
// in the catalogue.
void ApplyEndOrDueDateToTaggedItem(AddinState& s, const Object& objItem,
                                   std::string_view strProject,
                                   std::string_view strActivity) noexcept;

// Puts the date on the item by its class: StartDate or DueDate on a task,
// Start or End on an appointment or an exception of a series, nothing on
// anything else. Failures are ignored throughout.
void AssignDateToItem(AddinState& s, const Object& objItem, DateValue dtDate,
                      bool blnStart) noexcept;

// True if the date's year is neither 1899 nor 4501.
bool IsUsableDate(DateValue date) noexcept;

}  // namespace qvx::Actions
