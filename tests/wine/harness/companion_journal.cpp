#include "harness/companion_journal.h"

#include <windows.h>

#include <tlhelp32.h>

#include <algorithm>
#include <cstdint>
#include <cwctype>
#include <sstream>

#include "harness/check.h"

namespace qvx::winetest {
namespace {

std::wstring JournalPath() {
  wchar_t buffer[MAX_PATH * 2] = {};
  const DWORD n = GetEnvironmentVariableW(kJournalVariable, buffer, std::size(buffer));
  return std::wstring(buffer, n < std::size(buffer) ? n : 0);
}

bool SameName(const wchar_t* a, const wchar_t* b) {
  for (; *a && *b; ++a, ++b) {
    if (std::towlower(*a) != std::towlower(*b)) return false;
  }
  return *a == *b;
}

int RunningStandIns() {
  HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
  if (snapshot == INVALID_HANDLE_VALUE) return -1;
  PROCESSENTRY32W entry{};
  entry.dwSize = sizeof(entry);
  int count = 0;
  for (BOOL more = Process32FirstW(snapshot, &entry); more;
       more = Process32NextW(snapshot, &entry)) {
    if (SameName(entry.szExeFile, kStandInName)) ++count;
  }
  CloseHandle(snapshot);
  return count;
}

// "" for a file that is not there (no companion started).
std::string ReadWholeFile(const std::wstring& path) {
  HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                            OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return {};
  std::string text;
  char buffer[4096];
  DWORD got = 0;
  while (ReadFile(file, buffer, sizeof(buffer), &got, nullptr) && got > 0) text.append(buffer, got);
  CloseHandle(file);
  return text;
}

}  // namespace

unsigned long TickNow() {
  return GetTickCount();
}

void PumpOnce() {
  MSG msg;
  while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) {
    TranslateMessage(&msg);
    DispatchMessageW(&msg);
  }
  MsgWaitForMultipleObjects(0, nullptr, FALSE, 20, QS_ALLINPUT);
}

void SetUpJournal() {
  wchar_t folder[MAX_PATH + 1] = {};
  GetTempPathW(MAX_PATH, folder);
  const std::wstring path = std::wstring(folder) + L"qvx-wine-journal-" +
                            std::to_wstring(GetCurrentProcessId()) + L".txt";
  SetEnvironmentVariableW(kJournalVariable, path.c_str());
}

void ClearJournal() {
  const std::wstring path = JournalPath();
  REQUIRE(!path.empty());
  DeleteFileW(path.c_str());
}

size_t JournalLines() {
  const std::string text = ReadWholeFile(JournalPath());
  return static_cast<size_t>(std::count(text.begin(), text.end(), '\n'));
}

std::vector<std::string> FinishedLaunches() {
  const bool ended = PumpUntil([] { return RunningStandIns() == 0; }, 30000);
  if (!ended) RecordFailure(__FILE__, __LINE__, "the companion stand-ins did not end");
  REQUIRE(ended);
  struct Launch {
    uint64_t created;
    std::string argument;
  };
  std::vector<Launch> launches;
  std::istringstream file(ReadWholeFile(JournalPath()));
  std::string line;
  while (std::getline(file, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    const size_t tab = line.find('\t');
    if (tab == std::string::npos) continue;
    launches.push_back({std::stoull(line.substr(0, tab)), line.substr(tab + 1)});
  }
  std::stable_sort(launches.begin(), launches.end(),
                   [](const Launch& a, const Launch& b) { return a.created < b.created; });
  std::vector<std::string> arguments;
  for (const Launch& launch : launches) arguments.push_back(launch.argument);
  return arguments;
}

}  // namespace qvx::winetest
