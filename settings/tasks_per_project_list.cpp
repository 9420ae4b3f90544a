#include "settings/tasks_per_project_list.h"

namespace qvx {

void cTasksPerProjectList::FromString(AddinState&, std::string_view Text) {
  text_ = Text;
}

std::string cTasksPerProjectList::ToString(AddinState&) {
  return text_;
}

std::shared_ptr<cSingleList> cTasksPerProjectList::GetProjectsList(AddinState&) {
  return std::make_shared<cSingleList>();
}

}  // namespace qvx
