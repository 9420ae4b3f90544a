#include "settings/tasks_client.h"

#include "addin/state.h"
#include "reporting/value_codecs.h"
#include "settings/project_client.h"

namespace qvx {

std::string cTasksClient::ToString(AddinState& s) const {
  return EncodeValue(s, Variant(Activity)) + "," + CatalogueDateText(s, DueDate);
}

}  // namespace qvx
