#include "settings/tasks_client.h"

#include "settings/catalogue_text.h"
#include "settings/project_client.h"

namespace qvx {

std::string cTasksClient::ToString(FailureSink& s) const {
  return catalogue::Encoded(s, Activity) + "," + CatalogueDateText(s, DueDate);
}

}  // namespace qvx
