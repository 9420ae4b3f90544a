// Text forms of dates and numbers in the user's locale, as the legacy
// runtime's CStr, CDate, CDbl, IsDate and IsNumeric write and read them.
//
// Each build links one implementation, picked by the build by folder: the
// native build keeps the en-US rules of dates.h and variant.h
// (platform/posix/locale/), the DLL asks oleaut32 with the user's default
// locale (platform/win32/locale/: VarBstrFromDate, VarDateFromStr,
// VarBstrFromR8, VarBstrFromCy, VarR8FromStr). A text that the locale cannot
// read gives false; the caller raises the runtime's type mismatch.
//
//   DateToText(ComposeDate({2026, 3, 9, 14, 30, 0}))
//       en-US: "3/9/2026 2:30:00 PM"   de-DE: "09.03.2026 14:30:00"
//   TextToNumber("1,5", x)   de-DE: x == 1.5   en-US: false
#pragma once

#include <string>
#include <string_view>

#include "core/variant.h"

namespace qvx {

// CStr of a date: the short date, the time, or both.
std::string DateToText(DateValue date);
// CDate and IsDate of a text.
bool TextToDate(std::string_view text, DateValue& out);
// CStr of a Double and of a Currency.
std::string DoubleToText(double value);
std::string CurrencyToText(Currency value);
// CDbl and IsNumeric of a text; "&H" numbers read alike in every locale.
bool TextToNumber(std::string_view text, double& out);

}  // namespace qvx
