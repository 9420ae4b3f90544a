// Text at the Win32 boundary: the logic keeps UTF-8, Windows takes UTF-16
// (wchar_t) or text in the ANSI code page for the few "A" calls.
#pragma once

#include <string>
#include <string_view>

namespace qvx::win32 {

std::wstring Wide(std::string_view utf8);
std::string Narrow(std::wstring_view utf16);
// UTF-8 to and from the process's ANSI code page (CP_ACP).
std::string ToAnsi(std::string_view utf8);
std::string FromAnsi(std::string_view ansi);

}  // namespace qvx::win32
