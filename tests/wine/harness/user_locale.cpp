#include "harness/user_locale.h"

#include <cstring>
#include <string>

#include "harness/check.h"
#include "platform/win32/win_handles.h"

namespace qvx::winetest {
namespace {

constexpr wchar_t kRunVariable[] = L"QVX_USER_LOCALE_RUN";

std::wstring Widen(const char* text) {
  return std::wstring(text, text + strlen(text));
}

// The events of a run, from the variable the first host handed the second.
std::wstring RunName() {
  wchar_t buffer[128] = {};
  const DWORD n = GetEnvironmentVariableW(kRunVariable, buffer, 128);
  return n > 0 && n < 128 ? std::wstring(buffer, n) : std::wstring();
}

}  // namespace

void InUserLocale(const char* unixLocale, LCID expected, const char* testName, void (*checks)()) {
  if (!RunName().empty()) {
    REQUIRE(GetUserDefaultLCID() == expected);
    checks();
    return;
  }
  static int runs = 0;
  const std::wstring run = L"QVX_UserLocaleRun_" + std::to_wstring(GetCurrentProcessId()) + L"_" +
                           std::to_wstring(++runs);
  const win32::UniqueHandle passed(CreateEventW(nullptr, TRUE, FALSE, (run + L".passed").c_str()));
  const win32::UniqueHandle failed(CreateEventW(nullptr, TRUE, FALSE, (run + L".failed").c_str()));
  REQUIRE(passed && failed);
  wchar_t self[MAX_PATH] = {};
  REQUIRE(GetModuleFileNameW(nullptr, self, MAX_PATH) > 0);
  const std::wstring locale = Widen(unixLocale);
  std::wstring command = L"/usr/bin/env LC_ALL=" + locale + L" LANG=" + locale + L" " +
                         kRunVariable + L"=" + run + L" wine \"" + self + L"\" " + Widen(testName);
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process{};
  REQUIRE(CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                         &startup, &process));
  if (process.hProcess) CloseHandle(process.hProcess);
  if (process.hThread) CloseHandle(process.hThread);
  const HANDLE ends[] = {passed.get(), failed.get()};
  const DWORD end = WaitForMultipleObjects(2, ends, FALSE, 180000);
  if (end != WAIT_OBJECT_0) {
    ADD_FAILURE() << "the run in " << unixLocale
                  << (end == WAIT_OBJECT_0 + 1 ? " failed" : " did not end");
  }
}

void SignalUserLocaleRun(int result) {
  const std::wstring run = RunName();
  if (run.empty()) return;
  const win32::UniqueHandle done(OpenEventW(
      EVENT_MODIFY_STATE, FALSE, (run + (result == 0 ? L".passed" : L".failed")).c_str()));
  if (done) SetEvent(done.get());
}

}  // namespace qvx::winetest
