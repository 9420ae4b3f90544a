#include "schema/date_codecs.h"

#include <vector>

#include "core/text.h"

namespace qvx {

bool IsNoDateYear(int year) noexcept {
  return year == 1899 || year == 4501 || year == 1;
}

std::string ToQuorvixDateFormat(FailureSink& s, const Variant& date) {
  return TrappedResult<std::string>(
      s, "Global.ToQuorvixDateFormat", [&](Line& line, std::string& out) {
        line = 10;
        const DateParts p = DecomposeDate(date.ToDate());
        line = 20;
        out = std::to_string(p.year) + "-" + std::to_string(p.month) + "-" + std::to_string(p.day);
      });
}

std::string DateToQuorvixText(FailureSink& s, const DateValue& date) {
  if (IsNoDateYear(DecomposeDate(date).year)) return {};
  return ToQuorvixDateFormat(s, date);
}

DateValue FromQuorvixDateFormat(FailureSink& s, std::string_view text) {
  return TrappedResult<DateValue>(
      s, "Global.FromQuorvixDateFormat", [&](Line& line, DateValue& out) {
        line = 10;
        out = kEmptyDate;
        if (Trim(text).empty()) return;
        line = 20;
        const std::vector<std::string> parts = Split(text, "-");
        line = 30;
        if (parts.size() < 3) return;
        line = 40;
        // Parts that are no numbers, or a date out of the runtime's range,
        // leave the zero date.
        Quietly(s.Err(), [&] {
          out = DateSerial(Variant(parts[0]).ToInteger(), Variant(parts[1]).ToInteger(),
                           Variant(parts[2]).ToInteger());
        });
      });
}

DateValue TextToDate(FailureSink& s, const std::string& text) {
  return FromQuorvixDateFormat(s, text);
}

}  // namespace qvx
