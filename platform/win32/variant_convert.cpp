#include "platform/win32/variant_convert.h"

#include <climits>
#include <new>

#include "core/failure.h"
#include "platform/win32/dispatch_face.h"
#include "platform/win32/dispatch_object.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win_handles.h"

namespace qvx::win32 {
namespace {

[[noreturn]] void TypeMismatch() {
  throw Failure::Runtime(err::kTypeMismatch);
}

Variant FromUnknown(IUnknown* unknown, const platform::SharedMemberIds& ids) {
  if (!unknown) return Variant(Object());
  ComPtr<IDispatch> dispatch;
  if (FAILED(unknown->QueryInterface(IID_IDispatch, dispatch.PutVoid())) || !dispatch) {
    TypeMismatch();
  }
  return Variant(DispatchObject::Wrap(dispatch.get(), ids));
}

Variant FromUnsigned(unsigned long long value) {
  if (value <= static_cast<unsigned long long>(INT32_MAX)) {
    return Variant(static_cast<int32_t>(value));
  }
  return Variant(static_cast<double>(value));
}

BSTR AllocBstr(const std::string& utf8) {
  const std::wstring w = Wide(utf8);
  BSTR b = SysAllocStringLen(w.data(), static_cast<UINT>(w.size()));
  if (!b) throw std::bad_alloc();
  return b;
}

std::string SystemMessage(HRESULT hr) {
  wchar_t* buffer = nullptr;
  const DWORD n = FormatMessageW(
      FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
      nullptr, static_cast<DWORD>(hr), 0, reinterpret_cast<wchar_t*>(&buffer), 0, nullptr);
  std::wstring text = n && buffer ? std::wstring(buffer, n) : std::wstring();
  if (buffer) LocalFree(buffer);
  while (!text.empty() && (text.back() == L'\r' || text.back() == L'\n' || text.back() == L' ')) {
    text.pop_back();
  }
  return text.empty() ? std::string("Automation error") : Narrow(text);
}

bool IsOmitted(const VARIANT& v) noexcept {
  const VARIANT* p = &v;
  if (v.vt == (VT_BYREF | VT_VARIANT) && v.pvarVal) p = v.pvarVal;
  return p->vt == VT_ERROR && p->scode == DISP_E_PARAMNOTFOUND;
}

}  // namespace

std::optional<UINT> FirstOmitted(const DISPPARAMS& params) noexcept {
  if (!params.rgvarg) return std::nullopt;
  for (UINT i = params.cArgs; i-- > params.cNamedArgs;) {
    if (IsOmitted(params.rgvarg[i])) return i;
  }
  return std::nullopt;
}

Variant FromVariant(const VARIANT& in, const platform::SharedMemberIds& ids) {
  const VARTYPE vt = in.vt;
  if (vt & (VT_ARRAY | VT_VECTOR)) TypeMismatch();
  if (vt & VT_BYREF) {
    if (!in.byref) TypeMismatch();
    if ((vt & VT_TYPEMASK) == VT_VARIANT) return FromVariant(*in.pvarVal, ids);
    ScopedVariant copy;
    if (FAILED(VariantCopyInd(copy.get(), const_cast<VARIANT*>(&in)))) TypeMismatch();
    return FromVariant(copy.ref(), ids);
  }
  switch (vt) {
    case VT_EMPTY:
      return Variant();
    case VT_NULL:
      return Variant::Null();
    case VT_I2:
      return Variant(static_cast<int16_t>(in.iVal));
    case VT_I1:
      return Variant(static_cast<int16_t>(in.cVal));
    case VT_UI1:
      return Variant(static_cast<int16_t>(in.bVal));
    case VT_I4:
      return Variant(static_cast<int32_t>(in.lVal));
    case VT_INT:
      return Variant(static_cast<int32_t>(in.intVal));
    case VT_UI2:
      return Variant(static_cast<int32_t>(in.uiVal));
    case VT_UI4:
      return FromUnsigned(in.ulVal);
    case VT_UINT:
      return FromUnsigned(in.uintVal);
    case VT_I8:
      return Variant(static_cast<double>(in.llVal));
    case VT_UI8:
      return Variant(static_cast<double>(in.ullVal));
    case VT_R4:
      return Variant(static_cast<double>(in.fltVal));
    case VT_R8:
      return Variant(in.dblVal);
    case VT_CY:
      return Variant(Currency{in.cyVal.int64});
    case VT_DATE:
      return Variant(DateValue{in.date});
    case VT_BSTR:
      return Variant(in.bstrVal ? Narrow(std::wstring_view(in.bstrVal, SysStringLen(in.bstrVal)))
                                : std::string());
    case VT_BOOL:
      return Variant(in.boolVal != VARIANT_FALSE);
    case VT_DISPATCH:
      return in.pdispVal ? Variant(DispatchObject::Wrap(in.pdispVal, ids)) : Variant(Object());
    case VT_UNKNOWN:
      return FromUnknown(in.punkVal, ids);
    case VT_DECIMAL: {
      ScopedVariant asDouble;
      if (FAILED(VariantChangeType(asDouble.get(), const_cast<VARIANT*>(&in), 0, VT_R8)))
        TypeMismatch();
      return Variant(asDouble.ref().dblVal);
    }
    case VT_ERROR:
      // An omitted optional argument arrives as this error; it stays told apart from Empty.
      if (in.scode == DISP_E_PARAMNOTFOUND) return Variant::Missing();
      return Variant(static_cast<int32_t>(in.scode));
    default:
      TypeMismatch();
  }
}

void ToVariant(const Variant& value, VARIANT* out) {
  VariantInit(out);
  switch (value.Type()) {
    case VarType::Empty:
      return;
    case VarType::Null:
      out->vt = VT_NULL;
      return;
    case VarType::Integer:
      out->vt = VT_I2;
      out->iVal = *value.As<int16_t>();
      return;
    case VarType::Long:
      out->vt = VT_I4;
      out->lVal = *value.As<int32_t>();
      return;
    case VarType::Double:
      out->vt = VT_R8;
      out->dblVal = *value.As<double>();
      return;
    case VarType::Currency:
      out->vt = VT_CY;
      out->cyVal.int64 = value.As<Currency>()->scaled;
      return;
    case VarType::Date:
      out->vt = VT_DATE;
      out->date = value.As<DateValue>()->serial;
      return;
    case VarType::String:
      out->bstrVal = AllocBstr(*value.As<std::string>());
      out->vt = VT_BSTR;
      return;
    case VarType::Boolean:
      out->vt = VT_BOOL;
      out->boolVal = *value.As<bool>() ? VARIANT_TRUE : VARIANT_FALSE;
      return;
    case VarType::Object: {
      const Object& object = *value.As<Object>();
      out->vt = VT_DISPATCH;
      out->pdispVal = DispatchOf(object).Detach();
      return;
    }
    case VarType::Error:
      out->vt = VT_ERROR;
      out->scode = DISP_E_PARAMNOTFOUND;
      return;
  }
}

void WriteBack(const Variant& value, VARIANT& target) {
  if (!(target.vt & VT_BYREF) || !target.byref) return;
  const VARTYPE base = target.vt & VT_TYPEMASK;
  if (base == VT_VARIANT) {
    VariantClear(target.pvarVal);
    ToVariant(value, target.pvarVal);
    return;
  }
  ScopedVariant fresh;
  ToVariant(value, fresh.get());
  ScopedVariant typed;
  if (FAILED(VariantChangeType(typed.get(), fresh.get(), 0, base))) TypeMismatch();
  VARIANT& t = *typed.get();
  switch (base) {
    case VT_I2:
      *target.piVal = t.iVal;
      break;
    case VT_I4:
      *target.plVal = t.lVal;
      break;
    case VT_R4:
      *target.pfltVal = t.fltVal;
      break;
    case VT_R8:
      *target.pdblVal = t.dblVal;
      break;
    case VT_CY:
      *target.pcyVal = t.cyVal;
      break;
    case VT_DATE:
      *target.pdate = t.date;
      break;
    case VT_BOOL:
      *target.pboolVal = t.boolVal;
      break;
    case VT_BSTR:
      SysFreeString(*target.pbstrVal);
      *target.pbstrVal = t.bstrVal;
      t.vt = VT_EMPTY;  // ownership moved
      break;
    case VT_DISPATCH:
      if (*target.ppdispVal) (*target.ppdispVal)->Release();
      *target.ppdispVal = t.pdispVal;
      t.vt = VT_EMPTY;
      break;
    default:
      TypeMismatch();
  }
}

Failure FailureFromHresult(HRESULT hr, EXCEPINFO* info) {
  if (hr == DISP_E_EXCEPTION && info) {
    if (info->pfnDeferredFillIn) info->pfnDeferredFillIn(info);
    Bstr source = Bstr::Adopt(info->bstrSource);
    Bstr description = Bstr::Adopt(info->bstrDescription);
    Bstr help = Bstr::Adopt(info->bstrHelpFile);
    info->bstrSource = info->bstrDescription = info->bstrHelpFile = nullptr;
    const int32_t number = info->scode   ? static_cast<int32_t>(info->scode)
                           : info->wCode ? static_cast<int32_t>(info->wCode)
                                         : static_cast<int32_t>(hr);
    return Failure(number, Narrow(source.view()), Narrow(description.view()));
  }
  switch (hr) {
    case DISP_E_UNKNOWNNAME:
    case DISP_E_MEMBERNOTFOUND:
      return Failure::Runtime(err::kNoSuchMember);
    case DISP_E_TYPEMISMATCH:
      return Failure::Runtime(err::kTypeMismatch);
    case DISP_E_OVERFLOW:
      return Failure::Runtime(err::kOverflow);
    case DISP_E_BADPARAMCOUNT:
      return Failure(err::kWrongArgumentCount, "QVXClient",
                     "Wrong number of arguments or invalid property assignment");
    case DISP_E_PARAMNOTOPTIONAL:
    case DISP_E_PARAMNOTFOUND:
      // No call here names its arguments: the host is missing one it requires.
      return Failure(err::kArgumentNotOptional, "QVXClient", "Argument not optional");
    default:
      return Failure(static_cast<int32_t>(hr), "QVXClient", SystemMessage(hr));
  }
}

void FillExcepInfo(const Failure& failure, EXCEPINFO* info) {
  if (!info) return;
  *info = EXCEPINFO{};
  const int32_t number = failure.number();
  if (number > 0 && number < 0x10000) {
    info->wCode = static_cast<WORD>(number);
  } else {
    info->scode = number ? static_cast<SCODE>(number) : E_FAIL;
  }
  info->bstrSource = SysAllocString(Wide(failure.source()).c_str());
  info->bstrDescription = SysAllocString(Wide(failure.description()).c_str());
}

}  // namespace qvx::win32
