#include "platform/win32/wide_text.h"

#include "platform/win32/win32_api.h"

#include "core/text.h"

namespace qvx::win32 {

static_assert(sizeof(wchar_t) == sizeof(char16_t), "Windows wide characters are UTF-16 units");

std::wstring Wide(std::string_view utf8) {
  const std::u16string u = Utf8ToUtf16(utf8);
  return std::wstring(reinterpret_cast<const wchar_t*>(u.data()), u.size());
}

std::string Narrow(std::wstring_view utf16) {
  return Utf16ToUtf8(
      std::u16string_view(reinterpret_cast<const char16_t*>(utf16.data()), utf16.size()));
}

std::string ToAnsi(std::string_view utf8) {
  const std::wstring w = Wide(utf8);
  if (w.empty()) return {};
  const int n = WideCharToMultiByte(CP_ACP, 0, w.data(), static_cast<int>(w.size()), nullptr, 0,
                                    nullptr, nullptr);
  std::string out(static_cast<size_t>(n > 0 ? n : 0), '\0');
  if (n > 0) {
    WideCharToMultiByte(CP_ACP, 0, w.data(), static_cast<int>(w.size()), out.data(), n, nullptr,
                        nullptr);
  }
  return out;
}

std::string FromAnsi(std::string_view ansi) {
  if (ansi.empty()) return {};
  const int n =
      MultiByteToWideChar(CP_ACP, 0, ansi.data(), static_cast<int>(ansi.size()), nullptr, 0);
  std::wstring w(static_cast<size_t>(n > 0 ? n : 0), L'\0');
  if (n > 0)
    MultiByteToWideChar(CP_ACP, 0, ansi.data(), static_cast<int>(ansi.size()), w.data(), n);
  return Narrow(w);
}

}  // namespace qvx::win32
