// Dates as the legacy runtime keeps them: OLE automation dates.
//
// A date is days since 30 December 1899 as a double (the same value as a COM
// DATE), time of day as the fraction. Composition rolls over like the
// runtime's DateSerial: month 13 is January of the next year, day 0 the last
// day of the month before. Two dates carry meaning: the empty date (serial 0,
// year 1899) and the host's "none" date, 1 January 4501.
#pragma once

#include <string>
#include <string_view>

#include "core/locale_text.h"
#include "core/variant.h"

namespace qvx {

struct DateParts {
  int year = 1899;
  int month = 12;
  int day = 30;
  int hour = 0;
  int minute = 0;
  int second = 0;
};

inline constexpr DateValue kEmptyDate{0.0};
// 1 January 4501 00:00, what the host answers for "no date".
inline constexpr DateValue kNoneDate{949998.0};
// The range of the runtime's dates: 1 January 100 to 31 December 9999.
inline constexpr double kMinDateSerial = -657434.0;
inline constexpr double kMaxDateSerial = 2958465.99999;

// DateSerial with roll-over; throws Failure 6 outside the runtime's range.
DateValue DateSerial(int year, int month, int day);
// DateSerial plus a time of day (TimeSerial, also rolling over).
DateValue ComposeDate(const DateParts& parts);
DateParts DecomposeDate(DateValue date);
// The date without its time of day.
DateValue DatePart(DateValue date);

// The text form of a date as CStr gives it in the en-US locale: "1/2/2026",
// "1/2/2026 3:04:05 PM", or "3:04:05 PM" for a time alone. The user's locale
// decides the form the add-in uses: DateToText in core/locale_text.h.
std::string EnUsDateToText(DateValue date);
// Reads the forms above, ISO "2026-01-02[ 15:04[:05]]" and 24-hour times.
bool EnUsTextToDate(std::string_view text, DateValue& out);

}  // namespace qvx
