// The native build's user locale: en-US, by the runtime's rules in core/.
#include "core/dates.h"
#include "core/locale_text.h"

namespace qvx {

std::string DateToText(DateValue date) {
  return EnUsDateToText(date);
}

bool TextToDate(std::string_view text, DateValue& out) {
  return EnUsTextToDate(text, out);
}

std::string DoubleToText(double value) {
  return EnUsDoubleToText(value);
}

std::string CurrencyToText(Currency value) {
  return EnUsCurrencyToText(value);
}

bool TextToNumber(std::string_view text, double& out) {
  return ParseNumber(text, out);
}

}  // namespace qvx
