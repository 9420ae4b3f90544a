// Typed reading of an item's user-defined field.
#include "core/dates.h"
#include "state/addin_state.h"
#include "support/host_items.h"

namespace qvx {
namespace {

bool IsZero(const Variant& v) {
  return v.ToDouble() == 0.0;
}

// "Not empty" as the text comparison with "" says it.
bool HasText(const Variant& v) {
  return !v.IsEmpty() && v.ToText() != "";
}

Variant AbsentValue(VarType type, const Variant& defaultValue) {
  switch (type) {
    case VarType::Integer:
      if (defaultValue.IsNumeric() && !IsZero(defaultValue)) {
        return Variant(defaultValue.ToInteger());
      }
      return Variant(int16_t{0});
    case VarType::Currency:
      return Variant(int16_t{0});
    case VarType::Date:
      return Variant(kEmptyDate);
    case VarType::String:
      return HasText(defaultValue) ? defaultValue : Variant(std::string());
    case VarType::Boolean:
      return defaultValue.IsNumeric() ? Variant(defaultValue.ToBoolean()) : Variant();
    default:
      return Variant();
  }
}

Variant PresentValue(VarType type, const Variant& value, const Variant& defaultValue) {
  switch (type) {
    case VarType::Integer:
      return value.IsNumeric() ? value : Variant(int16_t{0});
    case VarType::Currency:
      return value.IsNull() ? Variant(int16_t{0}) : Variant(value.ToCurrency());
    case VarType::Date:
      return value.IsDate() ? Variant(value.ToDate()) : Variant(kEmptyDate);
    case VarType::String:
      if (HasText(defaultValue) && !HasText(value)) return defaultValue;
      return Variant(value.ToText());
    case VarType::Boolean:
      return Variant(value.ToBoolean());
    default:
      return Variant();
  }
}

}  // namespace

Variant GetUserDefinedFieldValue(AddinState& s, const Object& item, std::string_view strField,
                                 VarType type, const Variant& defaultValue) noexcept {
  return TrappedResult<Variant>(s, "GetUserDefinedFieldValue", [&](Line& line, Variant& result) {
    line = 10;
    Object property;
    // The item may have gone: it then reads as one without the property.
    IgnoreFailure(s.err, [&] {
      const Variant found = item.Get("UserProperties").ToObject().Call("Find", {Variant(strField)});
      if (found.IsObject()) property = found.ToObject();
    });
    if (property.IsNothing()) {
      line = 20;
      result = AbsentValue(type, defaultValue);
    } else {
      line = 30;
      const Variant value = property.Get("Value");
      line = 40;
      result = PresentValue(type, value, defaultValue);
    }
    property.Release();
  });
}

}  // namespace qvx
