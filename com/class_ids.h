// The identity of the add-in class: its CLSID, ProgID and the names that the
// registration writes. The CLSID is this product's own and never changes.
#pragma once

#include "platform/win32/win32_api.h"

namespace qvx::com {

// {6EB0F8F7-5EF3-4ACA-86D9-9FDE49ED7722}
inline constexpr CLSID kClsidQVXClientDLL = {
    0x6EB0F8F7, 0x5EF3, 0x4ACA, {0x86, 0xD9, 0x9F, 0xDE, 0x49, 0xED, 0x77, 0x22}};
inline constexpr wchar_t kClsidText[] = L"{6EB0F8F7-5EF3-4ACA-86D9-9FDE49ED7722}";

// Project "QVX_C", class "QVXClientDLL".
inline constexpr wchar_t kProgId[] = L"QVX_C.QVXClientDLL";
inline constexpr wchar_t kFriendlyName[] = L"Quorvix Client for Outlook";
inline constexpr wchar_t kDescription[] = L"This client add-in is part of Quorvix for Outlook";
// Load at every host start, connected.
inline constexpr DWORD kLoadBehavior = 3;

// Per user only: under HKEY_CURRENT_USER.
inline constexpr wchar_t kClassesKey[] = L"Software\\Classes";
inline constexpr wchar_t kOutlookAddinsKey[] = L"Software\\Microsoft\\Office\\Outlook\\Addins";

}  // namespace qvx::com
