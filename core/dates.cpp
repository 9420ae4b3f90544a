#include "core/dates.h"

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <vector>

#include "core/failure.h"
#include "core/text.h"

namespace qvx {
namespace {

// Days since 1970-01-01 of a proleptic Gregorian date (H. Hinnant's method).
int64_t DaysFromCivil(int64_t y, int64_t m, int64_t d) {
  y -= m <= 2;
  const int64_t era = (y >= 0 ? y : y - 399) / 400;
  const int64_t yoe = y - era * 400;
  const int64_t doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
  const int64_t doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
  return era * 146097 + doe - 719468;
}

void CivilFromDays(int64_t z, int& y, int& m, int& d) {
  z += 719468;
  const int64_t era = (z >= 0 ? z : z - 146096) / 146097;
  const int64_t doe = z - era * 146097;
  const int64_t yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
  const int64_t doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
  const int64_t mp = (5 * doy + 2) / 153;
  d = static_cast<int>(doy - (153 * mp + 2) / 5 + 1);
  m = static_cast<int>(mp < 10 ? mp + 3 : mp - 9);
  y = static_cast<int>(yoe + era * 400 + (m <= 2));
}

const int64_t kEpochDays = DaysFromCivil(1899, 12, 30);

double CheckedSerial(double serial) {
  if (!(serial >= kMinDateSerial && serial < kMaxDateSerial + 1.0)) {
    throw Failure::Runtime(err::kOverflow);
  }
  return serial;
}

// Time of day in whole seconds; the sign of an OLE date applies to its day only.
int64_t SecondsOfDay(double serial) {
  const double frac = std::fabs(serial - std::trunc(serial));
  return static_cast<int64_t>(std::llround(frac * 86400.0));
}

double Serial(int64_t days, int64_t seconds) {
  const double time = static_cast<double>(seconds) / 86400.0;
  return days >= 0 ? static_cast<double>(days) + time : static_cast<double>(days) - time;
}

}  // namespace

DateValue DateSerial(int year, int month, int day) {
  return ComposeDate(DateParts{year, month, day, 0, 0, 0});
}

DateValue ComposeDate(const DateParts& p) {
  int64_t year = p.year;
  if (year >= 0 && year < 30)
    year += 2000;  // the runtime's two-digit window
  else if (year >= 30 && year < 100)
    year += 1900;
  int64_t month0 = static_cast<int64_t>(p.month) - 1;
  year += month0 >= 0 ? month0 / 12 : -((11 - month0) / 12);
  month0 = ((month0 % 12) + 12) % 12;
  if (year < 100 || year > 9999) throw Failure::Runtime(err::kOverflow);
  int64_t days = DaysFromCivil(year, month0 + 1, 1) - kEpochDays + (p.day - 1);
  int64_t seconds =
      static_cast<int64_t>(p.hour) * 3600 + static_cast<int64_t>(p.minute) * 60 + p.second;
  days += seconds >= 0 ? seconds / 86400 : -((86399 - seconds) / 86400);
  seconds = ((seconds % 86400) + 86400) % 86400;
  return DateValue{CheckedSerial(Serial(days, seconds))};
}

DateParts DecomposeDate(DateValue date) {
  int64_t days = static_cast<int64_t>(std::trunc(date.serial));
  int64_t seconds = SecondsOfDay(date.serial);
  if (seconds >= 86400) {  // rounding reached midnight
    seconds -= 86400;
    days += date.serial >= 0 ? 1 : -1;
  }
  DateParts parts;
  CivilFromDays(days + kEpochDays, parts.year, parts.month, parts.day);
  parts.hour = static_cast<int>(seconds / 3600);
  parts.minute = static_cast<int>(seconds / 60 % 60);
  parts.second = static_cast<int>(seconds % 60);
  return parts;
}

DateValue DatePart(DateValue date) {
  return DateValue{std::trunc(date.serial)};
}

std::string EnUsDateToText(DateValue date) {
  const DateParts p = DecomposeDate(date);
  char buffer[64];
  const bool hasDate = std::trunc(date.serial) != 0.0;
  const bool hasTime = p.hour != 0 || p.minute != 0 || p.second != 0;
  std::string text;
  if (hasDate) {
    std::snprintf(buffer, sizeof buffer, "%d/%d/%d", p.month, p.day, p.year);
    text = buffer;
  }
  if (hasTime || !hasDate) {
    const int hour12 = p.hour % 12 == 0 ? 12 : p.hour % 12;
    std::snprintf(buffer, sizeof buffer, "%d:%02d:%02d %s", hour12, p.minute, p.second,
                  p.hour < 12 ? "AM" : "PM");
    if (!text.empty()) text += ' ';
    text += buffer;
  }
  return text;
}

namespace {

bool ReadInt(std::string_view s, size_t& i, int& out, size_t maxDigits) {
  size_t start = i;
  int64_t value = 0;
  while (i < s.size() && i - start < maxDigits && s[i] >= '0' && s[i] <= '9') {
    value = value * 10 + (s[i] - '0');
    ++i;
  }
  if (i == start) return false;
  out = static_cast<int>(value);
  return true;
}

bool ParseTime(std::string_view s, int& h, int& m, int& sec) {
  size_t i = 0;
  sec = 0;
  if (!ReadInt(s, i, h, 2) || i >= s.size() || s[i] != ':') return false;
  ++i;
  if (!ReadInt(s, i, m, 2)) return false;
  if (i < s.size() && s[i] == ':') {
    ++i;
    if (!ReadInt(s, i, sec, 2)) return false;
  }
  std::string_view rest = Trim(s.substr(i));
  if (!rest.empty()) {
    const bool pm = EqualsText(rest, "PM");
    if (!pm && !EqualsText(rest, "AM")) return false;
    if (h < 1 || h > 12) return false;
    h = h % 12 + (pm ? 12 : 0);
  }
  return h < 24 && m < 60 && sec < 60;
}

bool ValidDay(int y, int m, int d) {
  if (m < 1 || m > 12 || d < 1) return false;
  static constexpr int kDays[] = {31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (d > kDays[m - 1]) return false;
  if (m == 2 && d == 29) return (y % 4 == 0 && y % 100 != 0) || y % 400 == 0;
  return true;
}

bool ParseDay(std::string_view s, int& y, int& m, int& d) {
  size_t i = 0;
  int a = 0, b = 0, c = 0;
  if (!ReadInt(s, i, a, 4) || i >= s.size()) return false;
  const char sep = s[i];
  if (sep != '/' && sep != '-') return false;
  const size_t firstLen = i;
  ++i;
  if (!ReadInt(s, i, b, 2) || i >= s.size() || s[i] != sep) return false;
  ++i;
  const size_t thirdStart = i;
  if (!ReadInt(s, i, c, 4) || i != s.size()) return false;
  if (firstLen == 4) {
    y = a, m = b, d = c;  // ISO order
  } else {
    m = a, d = b, y = c;
    if (i - thirdStart <= 2) y += y < 30 ? 2000 : 1900;
  }
  return y >= 100 && y <= 9999 && ValidDay(y, m, d);
}

}  // namespace

bool EnUsTextToDate(std::string_view text, DateValue& out) {
  std::string_view s = Trim(text);
  if (s.empty() || s.size() > 64) return false;
  std::string_view dayText = s, timeText;
  const size_t space = s.find(' ');
  if (space != std::string_view::npos) {
    dayText = s.substr(0, space);
    timeText = Trim(s.substr(space + 1));
  }
  int y = 1899, m = 12, d = 30, h = 0, mi = 0, sec = 0;
  bool hasDay = ParseDay(dayText, y, m, d);
  if (!hasDay) {
    // A time alone: "3:04:05 PM" or "15:04".
    if (!ParseTime(s, h, mi, sec)) return false;
    y = 1899, m = 12, d = 30;
  } else if (!timeText.empty() && !ParseTime(timeText, h, mi, sec)) {
    return false;
  }
  out = ComposeDate(DateParts{y, m, d, h, mi, sec});
  return true;
}

}  // namespace qvx
