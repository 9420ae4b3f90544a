#include "schema/date_codecs.h"

#include <charconv>

#include "core/text.h"

namespace qvx {
namespace {

void AppendNumber(std::string& out, int number) {
  char digits[12];
  out.append(digits, std::to_chars(digits, digits + sizeof digits, number).ptr);
}

}  // namespace

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

void AppendQuorvixDateText(FailureSink& s, std::string& out, const DateValue& date) {
  const DateParts p = DecomposeDate(date);
  if (IsNoDateYear(p.year)) return;
  if (!(date.serial >= kMinDateSerial && date.serial < kMaxDateSerial + 1.0)) {
    out += ToQuorvixDateFormat(s, date);  // reports the overflow
    return;
  }
  AppendNumber(out, p.year);
  out += '-';
  AppendNumber(out, p.month);
  out += '-';
  AppendNumber(out, p.day);
}

std::string DateToQuorvixText(FailureSink& s, const DateValue& date) {
  std::string out;
  AppendQuorvixDateText(s, out, date);
  return out;
}

DateValue FromQuorvixDateFormat(FailureSink& s, std::string_view text) {
  return TrappedResult<DateValue>(
      s, "Global.FromQuorvixDateFormat", [&](Line& line, DateValue& out) {
        line = 10;
        out = kEmptyDate;
        if (Trim(text).empty()) return;
        line = 20;
        std::string_view parts[3];
        const size_t count = FirstParts(text, "-", parts);
        line = 30;
        if (count < 3) return;
        line = 40;
        // Parts that are no numbers, or a date out of the runtime's range,
        // leave the zero date.
        Quietly(s.Err(), [&] {
          out =
              DateSerial(TextToInteger(parts[0]), TextToInteger(parts[1]), TextToInteger(parts[2]));
        });
      });
}

DateValue TextToDate(FailureSink& s, const std::string& text) {
  return FromQuorvixDateFormat(s, text);
}

}  // namespace qvx
