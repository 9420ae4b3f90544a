// The catalogue as the bars read it: the user's projects and the activities
// of one project.
//
//   if (ProjectList(s).dicList.Exists(Trim(text))) { ... }
//   if (cTasksPerProject* activities = ProjectActivities(s, "Alpha")) { ... }
#pragma once

#include <string_view>

namespace qvx {

class AddinState;
class cSingleList;
class cTasksPerProject;

// The settings' Projects; fails as a released object does (91) before the
// settings were first read.
cSingleList& ProjectList(AddinState& s);

// The activities of the project of this name (case-blind), or nullptr.
cTasksPerProject* ProjectActivities(AddinState& s, std::string_view project);

}  // namespace qvx
