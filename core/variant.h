// Variant: the legacy runtime's value, with its conversion rules.
//
// Types: Empty, Null, 16-bit Integer, 32-bit Long, Double, Currency, Date,
// String (UTF-8), Boolean and Object. The runtime's True is -1, so a Boolean
// converts to -1 or 0. Conversions throw Failure with the runtime's numbers:
// 13 type mismatch, 6 overflow, 94 invalid use of Null.
//
//   Variant("12").ToInteger()  == 12
//   Variant(2.5).ToInteger()   == 2   (banker's rounding)
//   Variant(true).ToLong()     == -1
//   Variant("x").ToInteger()   -> Failure 13
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "core/object.h"

namespace qvx {

// The legacy runtime's type codes (VarType), also the selectors of typed reads.
enum class VarType : int16_t {
  Empty = 0,
  Null = 1,
  Integer = 2,
  Long = 3,
  Double = 5,
  Currency = 6,
  Date = 7,
  String = 8,
  Object = 9,
  Error = 10,  // only as an omitted optional argument (VT_ERROR, DISP_E_PARAMNOTFOUND)
  Boolean = 11,
};

struct NullValue {
  bool operator==(const NullValue&) const = default;
};

// An optional argument left out by the caller (the runtime's IsMissing).
struct MissingValue {
  bool operator==(const MissingValue&) const = default;
};

// Fixed point with four decimals, as the runtime's Currency.
struct Currency {
  int64_t scaled = 0;  // value * 10000
  static Currency FromDouble(double value);
  double ToDouble() const { return static_cast<double>(scaled) / 10000.0; }
  bool operator==(const Currency&) const = default;
};

// An OLE automation date: days since 30 December 1899, time as the fraction.
struct DateValue {
  double serial = 0.0;
  bool operator==(const DateValue&) const = default;
};

class Variant {
 public:
  Variant() = default;
  static Variant Null() { return Variant(NullValue{}); }
  // An omitted optional argument: `Controls.Add(type, , , , True)` passes
  // Missing() in the three gaps. Every conversion of it is a type mismatch.
  static Variant Missing() { return Variant(MissingValue{}); }
  Variant(MissingValue) : value_(MissingValue{}) {}
  Variant(NullValue) : value_(NullValue{}) {}
  Variant(int16_t v) : value_(v) {}
  Variant(int32_t v) : value_(v) {}
  Variant(double v) : value_(v) {}
  Variant(Currency v) : value_(v) {}
  Variant(DateValue v) : value_(v) {}
  Variant(bool v) : value_(v) {}
  Variant(std::string v) : value_(std::move(v)) {}
  Variant(std::string_view v) : value_(std::string(v)) {}
  Variant(const char* v) : value_(std::string(v)) {}
  Variant(Object v) : value_(std::move(v)) {}

  VarType Type() const noexcept;
  bool IsEmpty() const noexcept { return Type() == VarType::Empty; }
  bool IsNull() const noexcept { return Type() == VarType::Null; }
  bool IsObject() const noexcept { return Type() == VarType::Object; }
  bool IsString() const noexcept { return Type() == VarType::String; }
  bool IsMissing() const noexcept { return Type() == VarType::Error; }

  // IsNumeric(): Empty, numbers, Booleans and numeric text.
  bool IsNumeric() const;
  // IsDate(): dates and text that reads as a date.
  bool IsDate() const;

  std::string ToText() const;   // CStr
  int16_t ToInteger() const;    // CInt
  int32_t ToLong() const;       // CLng
  double ToDouble() const;      // CDbl
  Currency ToCurrency() const;  // CCur
  DateValue ToDate() const;     // CDate
  bool ToBoolean() const;       // CBool
  Object ToObject() const;      // Set x = v; Failure 424 if not an object

  // Direct access without conversion; nullptr if of another type.
  template <class T>
  const T* As() const noexcept {
    return std::get_if<T>(&value_);
  }

  // Equality of type and value (for tests and expectations, not "=").
  bool operator==(const Variant& other) const;

 private:
  std::variant<std::monostate, NullValue, int16_t, int32_t, double, Currency, DateValue,
               std::string, Object, bool, MissingValue>
      value_;
};

// Reads text as a number the way the runtime's numeric conversion does in the
// en-US locale: surrounding blanks allowed, sign, decimals, exponent, "&H"
// hex. Nothing else. The user's locale decides: TextToNumber in
// core/locale_text.h.
bool ParseNumber(std::string_view text, double& out);
// CStr of a Double and a Currency in the en-US locale: "0.3", "1E+20", "-2.5".
std::string EnUsDoubleToText(double value);
std::string EnUsCurrencyToText(Currency value);

// CInt of a text: Variant(text).ToInteger(), with plain digits of up to
// four places ("2011", "007") read directly.
int16_t TextToInteger(std::string_view text);

// Rounds half to even, as the runtime's integer conversions do.
double BankersRound(double value);

}  // namespace qvx
