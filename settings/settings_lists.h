// The lists of the settings record as the bars, the ribbon and the dialogs
// use them: the user's projects, the four custom field lists, and the
// activities of one project in the catalogue.
//
// A list the settings lack (no settings, not read yet) fails as the use of a
// released object does (91).
//
//   if (ProjectList(s).dicList.Exists(Trim(text))) { ... }
//   if (auto activities = FindActivities(s, "Alpha")) n = activities->dicList.Count();
#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace qvx {

class AddinState;
class cSingleList;
class cTasksPerProject;
class cMySettings;

// The settings of custom list N (1 to 4) or custom field N (5 to 10; any
// other number reads as field 10).
struct CustomSlot {
  std::string name;
  bool active;
  std::shared_ptr<cSingleList> list;  // lists only
};
CustomSlot CustomSlotOf(const cMySettings& settings, int n);

cSingleList& ProjectList(AddinState& s);
// Custom field list 1 to 4; another number is out of range (9).
cSingleList& CustomFieldList(AddinState& s, int field);
// The activities of the project of this name (case-blind), or nullptr.
// Shared, so that a list replaced while it is in use stays alive.
std::shared_ptr<cTasksPerProject> ProjectActivities(AddinState& s, std::string_view project);
// ProjectActivities with every failure ignored and none left pending: an
// unknown project or a missing catalogue is simply no list.
std::shared_ptr<cTasksPerProject> FindActivities(AddinState& s, std::string_view project) noexcept;

}  // namespace qvx
