#include "platform/win32/system_services_win32.h"

#include "platform/win32/win32_api.h"

#include <string>
#include <vector>

#include "platform/win32/com_module.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win_handles.h"

namespace qvx::win32 {
namespace {

DWORD Attributes(std::string_view path) {
  if (path.empty()) return INVALID_FILE_ATTRIBUTES;
  return GetFileAttributesW(Wide(path).c_str());
}

bool Start(std::wstring commandLine, int windowStyle) {
  STARTUPINFOW startup{};
  startup.cb = sizeof(startup);
  startup.dwFlags = STARTF_USESHOWWINDOW;
  startup.wShowWindow = static_cast<WORD>(windowStyle);
  PROCESS_INFORMATION process{};
  // CreateProcessW may write into the command line buffer.
  commandLine.push_back(L'\0');
  if (!CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                      &startup, &process)) {
    return false;
  }
  // Nobody waits for the program: its handles are closed at once.
  UniqueHandle thread(process.hThread);
  UniqueHandle started(process.hProcess);
  return true;
}

}  // namespace

std::string Win32SystemServices::SpecialFolder(int folder, int flags) {
  char path[MAX_PATH + 1] = {};
  if (FAILED(SHGetFolderPathA(nullptr, folder, nullptr, static_cast<DWORD>(flags), path))) {
    return {};
  }
  return FromAnsi(path);
}

std::string Win32SystemServices::AddinFolder() {
  std::vector<wchar_t> buffer(MAX_PATH);
  for (;;) {
    const DWORD n =
        GetModuleFileNameW(ThisModule(), buffer.data(), static_cast<DWORD>(buffer.size()));
    if (n == 0) return {};
    if (n < buffer.size()) {
      std::wstring path(buffer.data(), n);
      const size_t slash = path.find_last_of(L"\\/");
      return Narrow(slash == std::wstring::npos ? std::wstring() : path.substr(0, slash));
    }
    buffer.resize(buffer.size() * 2);
  }
}

bool Win32SystemServices::FileExists(std::string_view path) {
  const DWORD a = Attributes(path);
  return a != INVALID_FILE_ATTRIBUTES && !(a & FILE_ATTRIBUTE_DIRECTORY);
}

bool Win32SystemServices::FolderExists(std::string_view path) {
  const DWORD a = Attributes(path);
  return a != INVALID_FILE_ATTRIBUTES && (a & FILE_ATTRIBUTE_DIRECTORY);
}

bool Win32SystemServices::CreateFolder(std::string_view path) {
  return !path.empty() && CreateDirectoryW(Wide(path).c_str(), nullptr);
}

bool Win32SystemServices::AppendToFile(std::string_view path, std::string_view text) {
  if (path.empty()) return false;
  const UniqueHandle file = KernelHandle(CreateFileW(Wide(path).c_str(), FILE_APPEND_DATA,
                                                     FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                                     OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
  if (!file) return false;
  DWORD written = 0;
  return WriteFile(file.get(), text.data(), static_cast<DWORD>(text.size()), &written, nullptr) &&
         written == text.size();
}

long Win32SystemServices::ShellExecute(std::string_view file) {
  const std::string target = ToAnsi(file);
  // Empty verb: the file's default action; shown normally (1).
  const HINSTANCE result = ShellExecuteA(nullptr, "", target.c_str(), "", "", SW_SHOWNORMAL);
  return static_cast<long>(reinterpret_cast<INT_PTR>(result));
}

bool Win32SystemServices::Launch(std::string_view path, std::string_view argument,
                                 int windowStyle) {
  if (path.empty()) return false;
  std::wstring command = L"\"" + Wide(path) + L"\" " + Wide(argument);
  return Start(std::move(command), windowStyle);
}

bool Win32SystemServices::RunCommandLine(std::string_view commandLine, int windowStyle) {
  if (commandLine.empty()) return false;
  return Start(Wide(commandLine), windowStyle);
}

std::string Win32SystemServices::Environment(std::string_view name) {
  const std::wstring key = Wide(name);
  const DWORD n = GetEnvironmentVariableW(key.c_str(), nullptr, 0);
  if (n == 0) return {};
  std::wstring value(n, L'\0');
  const DWORD got = GetEnvironmentVariableW(key.c_str(), value.data(), n);
  value.resize(got < n ? got : 0);
  return Narrow(value);
}

DateValue Win32SystemServices::Now() {
  SYSTEMTIME local{};
  GetLocalTime(&local);
  double serial = 0.0;
  if (!SystemTimeToVariantTime(&local, &serial)) return DateValue{};
  return DateValue{serial};
}

void Win32SystemServices::DoEvents() {
  MSG msg;
  while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) {
    if (msg.message == WM_QUIT) {
      // Leave the quit for the host's own loop.
      PostQuitMessage(static_cast<int>(msg.wParam));
      return;
    }
    TranslateMessage(&msg);
    DispatchMessageW(&msg);
  }
}

}  // namespace qvx::win32
