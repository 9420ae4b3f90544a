#include "startup_timing.h"

#include <windows.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "bench/catalogue_text_sample.h"
#include "harness/addin_session.h"
#include "harness/companion_journal.h"
#include "harness/registry_keys.h"
#include "platform/win32/dispatch_face.h"
#include "platform/win32/wide_text.h"

namespace qvx::winetest {
namespace {

// This thread's processor time (user and kernel) in milliseconds; Wine counts
// it in the system's clock ticks, 10 ms each.
double ThreadProcessorTime() {
  FILETIME created, ended, kernel, user;
  GetThreadTimes(GetCurrentThread(), &created, &ended, &kernel, &user);
  const auto ms = [](const FILETIME& t) {
    return ((static_cast<uint64_t>(t.dwHighDateTime) << 32) | t.dwLowDateTime) / 10000.0;
  };
  return ms(kernel) + ms(user);
}

// Wall and processor milliseconds of one call.
template <class Call>
std::pair<double, double> Timed(Call&& call) {
  LARGE_INTEGER frequency, begin, end;
  QueryPerformanceFrequency(&frequency);
  const double processor = ThreadProcessorTime();
  QueryPerformanceCounter(&begin);
  call();
  QueryPerformanceCounter(&end);
  return {1000.0 * (end.QuadPart - begin.QuadPart) / frequency.QuadPart,
          ThreadProcessorTime() - processor};
}

// COUNT starts of a fresh add-in object with the settings as they stand;
// prints them under TITLE and adds the failed calls to `failures`.
void TimeSeries(const char* title, int count, int& failures) {
  std::printf("%s\n", title);
  std::vector<double> walls;
  double connectProcessor = 0, completeProcessor = 0;
  for (int round = 0; round < count; ++round) {
    ClearJournal();
    AddinSession session;
    win32::FaceCallCounts() = {};
    const auto [connect, connectCpu] = Timed([&] { failures += FAILED(session.Connect()); });
    const auto [complete, completeCpu] =
        Timed([&] { failures += FAILED(session.StartupComplete()); });
    connectProcessor += connectCpu;
    completeProcessor += completeCpu;
    walls.push_back(connect + complete);
    const uint64_t hostCalls = win32::FaceCallCounts().invokes;
    const size_t launches = FinishedLaunches().size();  // they end before the next start
    if (count <= 10 || round + 1 == count) {
      std::printf(
          "  start %d: OnConnection %.2f ms, OnStartupComplete %.2f ms, together %.2f ms; this "
          "thread's processor time %.0f + %.0f ms; %llu Invokes of the host, %zu companions "
          "started\n",
          round + 1, connect, complete, connect + complete, connectCpu, completeCpu,
          static_cast<unsigned long long>(hostCalls), launches);
    }
  }
  const double n = count;
  std::sort(walls.begin(), walls.end());
  std::printf(
      "  %d starts: median %.2f ms, minimum %.2f ms; this thread's processor time %.1f ms a "
      "start on average (OnConnection %.1f ms, OnStartupComplete %.1f ms; goal 10 ms)\n",
      count, walls[walls.size() / 2], walls.front(), (connectProcessor + completeProcessor) / n,
      connectProcessor / n, completeProcessor / n);
}

}  // namespace

int TimeStartup(size_t projects, int count) {
  const std::string catalogue = bench::CatalogueText(projects, 20);
  std::printf("catalogue: %zu x 20, %zu bytes of text\n", projects, catalogue.size());
  int failures = 0;
  // Automatic synchronisation on: start-up complete starts the companion.
  // Off: the same configured user and catalogue, and no process is created.
  for (const wchar_t* autoSync : {L"-1", L"0"}) {
    WriteConfiguredUser(win32::Wide(catalogue), autoSync);
    TimeSeries(autoSync[0] == L'-' ? "with the companion started (automatic synchronisation):"
                                   : "without a companion (no automatic synchronisation):",
               count, failures);
  }
  DeleteTree(kSettingsKey);
  return failures == 0 ? 0 : 1;
}

}  // namespace qvx::winetest
