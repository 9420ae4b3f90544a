#include "settings/project_client.h"

#include "schema/date_codecs.h"
#include "settings/catalogue_text.h"

namespace qvx {

std::string CatalogueDateText(FailureSink& s, DateValue date) {
  return catalogue::Encoded(s, DateToQuorvixText(s, date));
}

std::string cProjectClient::ToString(FailureSink& s) const {
  return catalogue::Encoded(s, ListName) + "," + std::to_string(intColorCode) + "," +
         CatalogueDateText(s, StartDate) + "," + CatalogueDateText(s, FinishDate);
}

}  // namespace qvx
