#include "harness/companion_journal.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>

#include "harness/check.h"

namespace qvx::winetest {
namespace {

std::wstring JournalPath() {
  wchar_t folder[MAX_PATH + 1] = {};
  GetTempPathW(MAX_PATH, folder);
  return std::wstring(folder) + L"qvx-wine-journal-" + std::to_wstring(GetCurrentProcessId()) +
         L".txt";
}

// The test program's job: every process it or the add-in starts joins it at
// creation. A process snapshot misses a program that is created but has not
// begun to run, so counting the job's processes is what makes the wait exact.
HANDLE LaunchJob() {
  static const HANDLE job = [] {
    HANDLE made = CreateJobObjectW(nullptr, nullptr);
    if (made && !AssignProcessToJobObject(made, GetCurrentProcess())) {
      CloseHandle(made);
      made = nullptr;
    }
    return made;
  }();
  return job;
}

// Programs started from here that are still running.
int RunningStandIns() {
  JOBOBJECT_BASIC_ACCOUNTING_INFORMATION job{};
  REQUIRE(LaunchJob() && QueryInformationJobObject(LaunchJob(), JobObjectBasicAccountingInformation,
                                                   &job, sizeof(job), nullptr));
  return static_cast<int>(job.ActiveProcesses) - 1;  // less this test program
}

// "" while no companion has started.
std::string ReadJournal() {
  std::ifstream file(JournalPath().c_str(), std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(file), {});
}

}  // namespace

void PumpOnce() {
  MSG msg;
  while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) {
    TranslateMessage(&msg);
    DispatchMessageW(&msg);
  }
  MsgWaitForMultipleObjects(0, nullptr, FALSE, 20, QS_ALLINPUT);
}

DWORD RunAndWait(std::wstring command) {
  STARTUPINFOW startup{};
  startup.cb = sizeof(startup);
  PROCESS_INFORMATION process{};
  REQUIRE(CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW,
                         nullptr, nullptr, &startup, &process));
  CloseHandle(process.hThread);
  PumpUntil([&] { return WaitForSingleObject(process.hProcess, 0) == WAIT_OBJECT_0; }, 120000);
  DWORD code = STILL_ACTIVE;
  GetExitCodeProcess(process.hProcess, &code);
  CloseHandle(process.hProcess);
  return code;
}

void SetUpJournal() {
  if (!LaunchJob()) Note("no job for the launches: every wait for them fails");
  SetEnvironmentVariableW(L"QVX_COMPANION_JOURNAL", JournalPath().c_str());
}

void ClearJournal() {
  DeleteFileW(JournalPath().c_str());
}

size_t JournalLines() {
  const std::string text = ReadJournal();
  return static_cast<size_t>(std::count(text.begin(), text.end(), '\n'));
}

std::vector<std::string> FinishedLaunches() {
  REQUIRE(PumpUntil([] { return RunningStandIns() == 0; }, 30000));
  std::vector<std::pair<uint64_t, std::string>> launches;  // creation time, argument
  std::istringstream journal(ReadJournal());
  std::string line;
  while (std::getline(journal, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    const size_t tab = line.find('\t');
    if (tab != std::string::npos)
      launches.emplace_back(std::stoull(line.substr(0, tab)), line.substr(tab + 1));
  }
  std::stable_sort(launches.begin(), launches.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  std::vector<std::string> arguments;
  for (auto& launch : launches) arguments.push_back(std::move(launch.second));
  return arguments;
}

}  // namespace qvx::winetest
