#include "commandbars/bar_lists.h"

#include "core/failure.h"
#include "settings/my_settings.h"
#include "settings/single_list.h"
#include "settings/tasks_per_project_list.h"
#include "state/addin_state.h"

namespace qvx {

cSingleList& ProjectList(AddinState& s) {
  cMySettings& settings = s.main.Settings();
  if (!settings.Projects) throw Failure::Runtime(err::kObjectNotSet);
  return *settings.Projects;
}

cTasksPerProject* ProjectActivities(AddinState& s, std::string_view project) {
  cMySettings& settings = s.main.Settings();
  if (!settings.MyProjectsTasks) throw Failure::Runtime(err::kObjectNotSet);
  auto* found = settings.MyProjectsTasks->dicList.Find(project);
  return found ? found->get() : nullptr;
}

}  // namespace qvx
