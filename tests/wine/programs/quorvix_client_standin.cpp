// QuorvixClient.exe for the Wine tests: a stand-in for the companion program
// that only records how it was started. It appends one line,
// "<its creation time>\t<its argument>", to the file named by the variable
// QVX_COMPANION_JOURNAL, in one write, so that stand-ins started together
// never mix their lines. The creation time (FILETIME, 100 ns units) lets the
// tests put launches that raced each other back in launch order.
//
// Exit codes: 0 recorded, 3 no journal named or the journal not written.
#include <windows.h>

#include <cstdint>
#include <string>

namespace {

// The command line after the program's own name: what the add-in passed.
std::wstring Argument() {
  const wchar_t* p = GetCommandLineW();
  if (*p == L'"') {
    ++p;
    while (*p && *p != L'"') ++p;
    if (*p) ++p;
  } else {
    while (*p && *p != L' ' && *p != L'\t') ++p;
  }
  while (*p == L' ' || *p == L'\t') ++p;
  return p;
}

std::string Utf8(const std::wstring& text) {
  if (text.empty()) return {};
  const int n = WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), nullptr,
                                    0, nullptr, nullptr);
  std::string out(static_cast<size_t>(n), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), out.data(), n,
                      nullptr, nullptr);
  return out;
}

}  // namespace

int main() {
  wchar_t journal[MAX_PATH * 2] = {};
  const DWORD n = GetEnvironmentVariableW(L"QVX_COMPANION_JOURNAL", journal, MAX_PATH * 2);
  if (n == 0 || n >= MAX_PATH * 2) return 3;

  FILETIME created{}, exited{}, kernel{}, user{};
  GetProcessTimes(GetCurrentProcess(), &created, &exited, &kernel, &user);
  const uint64_t stamp =
      (static_cast<uint64_t>(created.dwHighDateTime) << 32) | created.dwLowDateTime;
  const std::string line = std::to_string(stamp) + "\t" + Utf8(Argument()) + "\r\n";

  HANDLE file = CreateFileW(journal, FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                            OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return 3;
  DWORD written = 0;
  const BOOL ok = WriteFile(file, line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
  CloseHandle(file);
  return ok && written == line.size() ? 0 : 3;
}
