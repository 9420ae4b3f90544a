// The lists behind the ribbon's drop-downs, from the settings record.
//
// Projects and the four custom field lists are the settings' own; the
// activities are those of one project in the catalogue, looked up with
// failures ignored, so that an unknown project is simply no list. Using a
// list the settings lack (no settings, projects not read yet) fails as the
// use of a missing object does (91).
//
//   cSingleList& projects = DropDownProjectList(s);
//   if (auto activities = FindActivities(s, project)) n = activities->dicList.Count();
#pragma once

#include <memory>
#include <string_view>

namespace qvx {

class AddinState;
class cSingleList;
class cTasksPerProject;

cSingleList& DropDownProjectList(AddinState& s);
// Custom field list 1 to 4.
cSingleList& CustomFieldList(AddinState& s, int field);
// The activities of `project` (case-blind), or nullptr; never fails, and
// leaves no failure pending.
std::shared_ptr<cTasksPerProject> FindActivities(AddinState& s, std::string_view project) noexcept;

}  // namespace qvx
