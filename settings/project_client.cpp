#include "settings/project_client.h"

#include "addin/state.h"
#include "reporting/date_codecs.h"
#include "reporting/value_codecs.h"

namespace qvx {

std::string CatalogueDateText(AddinState& s, DateValue date) {
  return EncodeValue(s, Variant(DateToQuorvixText(s, date)));
}

std::string cProjectClient::ToString(AddinState& s) const {
  return EncodeValue(s, Variant(ListName)) + "," + std::to_string(intColorCode) + "," +
         CatalogueDateText(s, StartDate) + "," + CatalogueDateText(s, FinishDate);
}

}  // namespace qvx
