// The user's locale on Windows: oleaut32's conversions with the user's
// default locale and no flags, as the legacy runtime's CStr, CDate and CDbl.
#include <windows.h>

#include <oleauto.h>

#include <string>

#include "core/failure.h"
#include "core/locale_text.h"
#include "core/text.h"

namespace qvx {
namespace {

std::wstring Utf16(std::string_view utf8) {
  if (utf8.empty()) return {};
  const int size = static_cast<int>(utf8.size());
  const int n = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, nullptr, 0);
  std::wstring out(static_cast<size_t>(n), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, out.data(), n);
  return out;
}

// Takes the BSTR that a VarBstrFrom* call returned.
std::string TakeText(HRESULT hr, BSTR text) {
  if (FAILED(hr)) {
    throw Failure::Runtime(hr == DISP_E_OVERFLOW ? err::kOverflow : err::kTypeMismatch);
  }
  const int length = static_cast<int>(SysStringLen(text));
  const int n = WideCharToMultiByte(CP_UTF8, 0, text, length, nullptr, 0, nullptr, nullptr);
  std::string out(static_cast<size_t>(n), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text, length, out.data(), n, nullptr, nullptr);
  SysFreeString(text);
  return out;
}

}  // namespace

std::string DateToText(DateValue date) {
  BSTR text = nullptr;
  const HRESULT hr = VarBstrFromDate(date.serial, LOCALE_USER_DEFAULT, 0, &text);
  return TakeText(hr, text);
}

bool TextToDate(std::string_view text, DateValue& out) {
  std::wstring wide = Utf16(text);  // MinGW declares the text parameters non-const
  DATE date = 0;
  if (FAILED(VarDateFromStr(wide.data(), LOCALE_USER_DEFAULT, 0, &date))) return false;
  out = DateValue{date};
  return true;
}

std::string DoubleToText(double value) {
  BSTR text = nullptr;
  const HRESULT hr = VarBstrFromR8(value, LOCALE_USER_DEFAULT, 0, &text);
  return TakeText(hr, text);
}

std::string CurrencyToText(Currency value) {
  CY cy;
  cy.int64 = value.scaled;
  BSTR text = nullptr;
  const HRESULT hr = VarBstrFromCy(cy, LOCALE_USER_DEFAULT, 0, &text);
  return TakeText(hr, text);
}

bool TextToNumber(std::string_view text, double& out) {
  // "&HFFFF" is -1 to the runtime, a 16-bit number, whatever the locale.
  if (!Trim(text).empty() && Trim(text).front() == '&') return ParseNumber(text, out);
  std::wstring wide = Utf16(text);
  double value = 0;
  if (FAILED(VarR8FromStr(wide.data(), LOCALE_USER_DEFAULT, 0, &value))) return false;
  out = value;
  return true;
}

}  // namespace qvx
