#include "settings/project_client.h"

#include <charconv>

#include "schema/date_codecs.h"
#include "schema/value_codecs.h"

namespace qvx {

std::string cProjectClient::ToString(FailureSink& s) const {
  std::string record;
  AppendTo(s, record);
  return record;
}

void cProjectClient::AppendTo(FailureSink& s, std::string& out) const {
  AppendEncoded(out, ListName);
  char colour[8];
  out += ',';
  out.append(colour, std::to_chars(colour, colour + sizeof colour, intColorCode).ptr);
  out += ',';
  AppendQuorvixDateText(s, out, StartDate);
  out += ',';
  AppendQuorvixDateText(s, out, FinishDate);
}

}  // namespace qvx
