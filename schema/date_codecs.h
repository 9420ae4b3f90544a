// The text form of dates in catalogue strings: year, "-", month, "-", day,
// plain numbers without padding ("2010-3-7"). A year of 1899 (the zero date),
// 4501 (the host's "none" date) or 1 means no date at all.
//
//   ToQuorvixDateFormat(s, DateSerial(2010, 12, 1)) == "2010-12-1"
//   FromQuorvixDateFormat(s, "2010-03-07") == DateSerial(2010, 3, 7)
//   FromQuorvixDateFormat(s, "2010-12") == kEmptyDate      (two parts)
//   DateToQuorvixText(s, kNoneDate) == ""
#pragma once

#include <string>
#include <string_view>

#include "core/dates.h"
#include "core/trap.h"
#include "core/variant.h"

namespace qvx {

// The value as a date, written without padding. A value that is no date is
// reported under "Global.ToQuorvixDateFormat" and gives "".
std::string ToQuorvixDateFormat(FailureSink& s, const Variant& date);

// "" for a date of the years 1899, 4501 or 1; otherwise ToQuorvixDateFormat.
std::string DateToQuorvixText(FailureSink& s, const DateValue& date);
// The same, appended to `out`.
void AppendQuorvixDateText(FailureSink& s, std::string& out, const DateValue& date);

// Reads "year-month-day" (padding allowed, extra parts ignored, a month or day
// out of range rolling over). Blank text, fewer than three parts or parts that
// are no numbers give the zero date. Trap label "Global.FromQuorvixDateFormat".
DateValue FromQuorvixDateFormat(FailureSink& s, std::string_view text);

// The by-reference form of FromQuorvixDateFormat used by the lists.
DateValue TextToDate(FailureSink& s, const std::string& text);

// True for the years that mean no date: 1899, 4501 and 1.
bool IsNoDateYear(int year) noexcept;

}  // namespace qvx
