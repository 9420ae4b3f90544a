// VARIANT <-> qvx::Variant at the COM boundary.
//
// Text is BSTR (UTF-16) outside and UTF-8 inside; DATE and the Variant's date
// are the same OLE automation serial; CY is the same scaled 64-bit integer;
// VARIANT_BOOL True is -1. Objects: VT_DISPATCH becomes an Object over the
// IDispatch (see dispatch_object.h); going out, an Object of this adapter
// hands back its own IDispatch, any other HostObject gets an IDispatch face.
// By-reference VARIANTs are read through; WriteBack stores into one. An
// omitted argument (Variant::Missing) is VT_ERROR with DISP_E_PARAMNOTFOUND,
// both ways; any other VT_ERROR comes in as its code, a Long.
#pragma once

#include "platform/win32/win32_api.h"

#include <optional>

#include "core/failure.h"
#include "core/variant.h"
#include "platform/member_ids.h"

namespace qvx::win32 {

// Throws Failure 13 for types the logic has no counterpart for (arrays, ...).
// An object's wrapper shares `ids` (dispatch_object.h).
Variant FromVariant(const VARIANT& in, const platform::SharedMemberIds& ids = {});
// `out` must be empty (VariantInit or VariantClear); it receives a new value.
void ToVariant(const Variant& value, VARIANT* out);
// Stores `value` through a by-reference VARIANT, converted to the referenced
// type; a by-value VARIANT is left alone.
void WriteBack(const Variant& value, VARIANT& target);

// The rgvarg index of the first omitted positional argument (VT_ERROR with
// DISP_E_PARAMNOTFOUND, by value or by reference) in signature
// order (the highest index), for a call's argError.
std::optional<UINT> FirstOmitted(const DISPPARAMS& params) noexcept;

// The program's error for a failed IDispatch call: the HRESULT's number, or
// EXCEPINFO's scode (else wCode), source and description. Frees the
// EXCEPINFO's strings.
Failure FailureFromHresult(HRESULT hr, EXCEPINFO* info);
// The reverse, for errors going out to a caller's EXCEPINFO.
void FillExcepInfo(const Failure& failure, EXCEPINFO* info);

}  // namespace qvx::win32
