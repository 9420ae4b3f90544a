#include "core/variant.h"

#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

#include "core/dates.h"
#include "core/failure.h"
#include "core/locale_text.h"
#include "core/text.h"

namespace qvx {
namespace {

[[noreturn]] void Mismatch() {
  throw Failure::Runtime(err::kTypeMismatch);
}
[[noreturn]] void Overflow() {
  throw Failure::Runtime(err::kOverflow);
}
[[noreturn]] void NullUse() {
  throw Failure::Runtime(err::kInvalidUseOfNull);
}

double NumericValue(const Variant& v);

template <class Int>
Int ToIntegral(const Variant& v) {
  const double rounded = BankersRound(NumericValue(v));
  if (!(rounded >= static_cast<double>(std::numeric_limits<Int>::min()) &&
        rounded <= static_cast<double>(std::numeric_limits<Int>::max()))) {
    Overflow();
  }
  return static_cast<Int>(rounded);
}

double NumericValue(const Variant& v) {
  switch (v.Type()) {
    case VarType::Empty:
      return 0.0;
    case VarType::Null:
      NullUse();
    case VarType::Integer:
      return *v.As<int16_t>();
    case VarType::Long:
      return *v.As<int32_t>();
    case VarType::Double:
      return *v.As<double>();
    case VarType::Currency:
      return v.As<Currency>()->ToDouble();
    case VarType::Date:
      return v.As<DateValue>()->serial;
    case VarType::Boolean:
      return *v.As<bool>() ? -1.0 : 0.0;
    case VarType::String: {
      double out = 0;
      if (TextToNumber(*v.As<std::string>(), out)) return out;
      Mismatch();
    }
    case VarType::Object:
    case VarType::Error:
      Mismatch();
  }
  Mismatch();
}

}  // namespace

std::string EnUsDoubleToText(double v) {
  if (v == 0.0) return "0";
  char buffer[64];
  std::snprintf(buffer, sizeof buffer, "%.15G", v);
  std::string text = buffer;
  // "1E+015" -> "1E+15": the runtime writes the exponent without padding.
  const size_t e = text.find('E');
  if (e != std::string::npos) {
    size_t digits = e + 2;
    while (digits + 1 < text.size() && text[digits] == '0') text.erase(digits, 1);
  }
  return text;
}

std::string EnUsCurrencyToText(Currency c) {
  const bool negative = c.scaled < 0;
  const uint64_t magnitude =
      negative ? 0 - static_cast<uint64_t>(c.scaled) : static_cast<uint64_t>(c.scaled);
  std::string text = std::to_string(magnitude / 10000);
  uint64_t fraction = magnitude % 10000;
  if (fraction != 0) {
    char buffer[8];
    std::snprintf(buffer, sizeof buffer, "%04u", static_cast<unsigned>(fraction));
    std::string decimals = buffer;
    while (decimals.back() == '0') decimals.pop_back();
    text += "." + decimals;
  }
  return negative ? "-" + text : text;
}

Currency Currency::FromDouble(double value) {
  const double scaled = BankersRound(value * 10000.0);
  if (!(std::fabs(scaled) < 9.2233720368547e18)) Overflow();
  return Currency{static_cast<int64_t>(scaled)};
}

double BankersRound(double value) {
  if (!std::isfinite(value)) return value;
  const double floor = std::floor(value);
  const double diff = value - floor;
  if (diff > 0.5) return floor + 1.0;
  if (diff < 0.5) return floor;
  return std::fmod(floor, 2.0) == 0.0 ? floor : floor + 1.0;
}

bool ParseNumber(std::string_view text, double& out) {
  std::string_view s = Trim(text);
  if (s.empty() || s.size() > 400) return false;
  if (s.size() > 2 && s[0] == '&' && (s[1] == 'H' || s[1] == 'h')) {
    uint64_t value = 0;
    for (size_t i = 2; i < s.size(); ++i) {
      const char c = s[i];
      int digit = c >= '0' && c <= '9'   ? c - '0'
                  : c >= 'a' && c <= 'f' ? c - 'a' + 10
                  : c >= 'A' && c <= 'F' ? c - 'A' + 10
                                         : -1;
      if (digit < 0 || i > 17) return false;
      value = value * 16 + static_cast<uint64_t>(digit);
    }
    // Up to four digits is a 16-bit value, up to eight a 32-bit one, both signed.
    if (s.size() - 2 <= 4)
      out = static_cast<int16_t>(static_cast<uint16_t>(value));
    else if (s.size() - 2 <= 8)
      out = static_cast<int32_t>(static_cast<uint32_t>(value));
    else
      out = static_cast<double>(value);
    return true;
  }
  // Only sign, digits, one point and an exponent; strtod would take "inf", "0x".
  size_t i = 0;
  if (s[i] == '+' || s[i] == '-') ++i;
  size_t digits = 0;
  while (i < s.size() && s[i] >= '0' && s[i] <= '9') ++i, ++digits;
  if (i < s.size() && s[i] == '.') {
    ++i;
    while (i < s.size() && s[i] >= '0' && s[i] <= '9') ++i, ++digits;
  }
  if (digits == 0) return false;
  if (i < s.size() && (s[i] == 'e' || s[i] == 'E' || s[i] == 'd' || s[i] == 'D')) {
    ++i;
    if (i < s.size() && (s[i] == '+' || s[i] == '-')) ++i;
    size_t expDigits = 0;
    while (i < s.size() && s[i] >= '0' && s[i] <= '9') ++i, ++expDigits;
    if (expDigits == 0) return false;
  }
  if (i != s.size()) return false;
  std::string copy(s);
  for (char& c : copy) {
    if (c == 'd' || c == 'D') c = 'e';
  }
  errno = 0;
  const double value = std::strtod(copy.c_str(), nullptr);
  if (errno == ERANGE && std::isinf(value)) return false;
  out = value;
  return true;
}

VarType Variant::Type() const noexcept {
  static constexpr VarType kTypes[] = {VarType::Empty,   VarType::Null,   VarType::Integer,
                                       VarType::Long,    VarType::Double, VarType::Currency,
                                       VarType::Date,    VarType::String, VarType::Object,
                                       VarType::Boolean, VarType::Error};
  return kTypes[value_.index()];
}

bool Variant::IsNumeric() const {
  switch (Type()) {
    case VarType::Empty:
    case VarType::Integer:
    case VarType::Long:
    case VarType::Double:
    case VarType::Currency:
    case VarType::Boolean:
      return true;
    case VarType::String: {
      double ignored = 0;
      return TextToNumber(*As<std::string>(), ignored);
    }
    default:
      return false;
  }
}

bool Variant::IsDate() const {
  if (Type() == VarType::Date) return true;
  if (Type() != VarType::String) return false;
  DateValue ignored;
  return TextToDate(*As<std::string>(), ignored);
}

std::string Variant::ToText() const {
  switch (Type()) {
    case VarType::Empty:
      return {};
    case VarType::Null:
      NullUse();
    case VarType::Integer:
      return std::to_string(*As<int16_t>());
    case VarType::Long:
      return std::to_string(*As<int32_t>());
    case VarType::Double:
      return DoubleToText(*As<double>());
    case VarType::Currency:
      return CurrencyToText(*As<Currency>());
    case VarType::Date:
      return DateToText(*As<DateValue>());
    case VarType::String:
      return *As<std::string>();
    case VarType::Boolean:
      return *As<bool>() ? "True" : "False";
    case VarType::Object:
    case VarType::Error:
      Mismatch();
  }
  Mismatch();
}

int16_t Variant::ToInteger() const {
  return ToIntegral<int16_t>(*this);
}
int16_t TextToInteger(std::string_view text) {
  if (!text.empty() && text.size() <= 4) {
    int value = 0;
    for (const char c : text) {
      if (c < '0' || c > '9') return Variant(std::string(text)).ToInteger();
      value = value * 10 + (c - '0');
    }
    return static_cast<int16_t>(value);
  }
  return Variant(std::string(text)).ToInteger();
}

int32_t Variant::ToLong() const {
  return ToIntegral<int32_t>(*this);
}
double Variant::ToDouble() const {
  return NumericValue(*this);
}
Currency Variant::ToCurrency() const {
  return Currency::FromDouble(NumericValue(*this));
}

DateValue Variant::ToDate() const {
  switch (Type()) {
    case VarType::Date:
      return *As<DateValue>();
    case VarType::String: {
      DateValue out;
      if (TextToDate(*As<std::string>(), out)) return out;
      double serial = 0;
      if (TextToNumber(*As<std::string>(), serial)) break;
      Mismatch();
    }
    case VarType::Null:
      NullUse();
    case VarType::Object:
    case VarType::Error:
      Mismatch();
    default:
      break;
  }
  const double serial = NumericValue(*this);
  if (!(serial >= kMinDateSerial && serial < kMaxDateSerial + 1.0)) Overflow();
  return DateValue{serial};
}

bool Variant::ToBoolean() const {
  if (Type() == VarType::Boolean) return *As<bool>();
  if (Type() == VarType::String) {
    const std::string& s = *As<std::string>();
    if (EqualsText(Trim(s), "True")) return true;
    if (EqualsText(Trim(s), "False")) return false;
  }
  return NumericValue(*this) != 0.0;
}

Object Variant::ToObject() const {
  if (const Object* o = As<Object>()) return *o;
  if (IsEmpty()) return Object{};
  throw Failure::Runtime(err::kObjectRequired);
}

bool Variant::operator==(const Variant& other) const {
  if (value_.index() != other.value_.index()) return false;
  if (const Object* o = As<Object>()) return o->Is(*other.As<Object>());
  return value_ == other.value_;
}

}  // namespace qvx
