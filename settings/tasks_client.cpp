#include "settings/tasks_client.h"

#include "schema/date_codecs.h"
#include "schema/value_codecs.h"

namespace qvx {

std::string cTasksClient::ToString(FailureSink& s) const {
  std::string record;
  AppendTo(s, record);
  return record;
}

void cTasksClient::AppendTo(FailureSink& s, std::string& out) const {
  AppendEncoded(out, Activity);
  out += ',';
  AppendQuorvixDateText(s, out, DueDate);
}

}  // namespace qvx
