// The names of the prepared views: the catalogue made once at start-up, and
// the mapping between a name on screen, its catalogue form and its resource.
//
// A view's name on screen has the configured titles where the catalogue has
// "[PROJECT]" and "[ACTIVITY]"; its resource name has the words PROJECT and
// ACTIVITY there. With the titles Client and Job:
//
//   GetActualViewName(s, "[PROJECT] and [ACTIVITY]")  // "Client and Job"
//   GetViewResName(s, "Client and Job")               // "PROJECT and ACTIVITY"
//   GetViewType("Calendar view of Reported Items (Filtered)")  // 2, olCalendarView
//
// The catalogue (colViewNames) holds the names on screen under the titles of
// start-up, and is not rebuilt when the titles change: a view whose name is in
// it is a prepared one, any other the user's own.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace qvx {

class AddinState;

// Makes colViewNames: the fourteen names through GetActualViewName, in
// catalogue order.
void subLoadViewNames(AddinState& s);

// Whether `name` is a view of the catalogue (without regard to case). False
// while there is no catalogue.
bool IsPreparedViewName(const AddinState& s, std::string_view name);

// Each "[PROJECT]" replaced by the project title, then each "[ACTIVITY]" by
// the activity title. "" after a failure (reported).
std::string GetActualViewName(AddinState& s, std::string_view name);

// Each occurrence of the project title replaced by "PROJECT", then each of
// the activity title by "ACTIVITY", on any name. "" after a failure (reported).
std::string GetViewResName(AddinState& s, std::string_view name);

// olCalendarView for the two calendar views of the catalogue, named exactly,
// else olTableView.
int32_t GetViewType(std::string_view name);

}  // namespace qvx
