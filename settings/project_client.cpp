#include "settings/project_client.h"

#include "schema/date_codecs.h"
#include "settings/catalogue_text.h"
#include "state/addin_state.h"

namespace qvx {

std::string CatalogueDateText(AddinState& s, DateValue date) {
  return catalogue::Encoded(s, DateToQuorvixText(s, date));
}

std::string cProjectClient::ToString(AddinState& s) const {
  return catalogue::Encoded(s, ListName) + "," + std::to_string(intColorCode) + "," +
         CatalogueDateText(s, StartDate) + "," + CatalogueDateText(s, FinishDate);
}

}  // namespace qvx
