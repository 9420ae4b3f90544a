#include "startup_timing.h"

#include <windows.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "bench/catalogue_text_sample.h"
#include "harness/addin_session.h"
#include "harness/companion_journal.h"
#include "harness/registry_keys.h"
#include "platform/win32/dispatch_face.h"
#include "platform/win32/wide_text.h"

namespace qvx::winetest {
namespace {

struct Start {
  double connect = 0, complete = 0;                    // wall, milliseconds
  double connectProcessor = 0, completeProcessor = 0;  // this thread's, milliseconds
  double Wall() const { return connect + complete; }
};

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

// COUNT starts of a fresh add-in object with the settings as they stand;
// prints them under TITLE and adds the failed calls to `failures`.
void TimeSeries(const char* title, int count, int& failures) {
  LARGE_INTEGER frequency;
  QueryPerformanceFrequency(&frequency);
  const auto milliseconds = [&](LONGLONG ticks) { return 1000.0 * ticks / frequency.QuadPart; };
  std::printf("%s\n", title);
  std::vector<Start> starts;
  for (int round = 0; round < count; ++round) {
    ClearJournal();
    AddinSession session;
    win32::FaceCallCounts() = {};
    LARGE_INTEGER begin, connected, completed;
    const double processorBefore = ThreadProcessorTime();
    QueryPerformanceCounter(&begin);
    failures += FAILED(session.Connect());
    QueryPerformanceCounter(&connected);
    const double processorConnected = ThreadProcessorTime();
    failures += FAILED(session.StartupComplete());
    QueryPerformanceCounter(&completed);
    const Start start{milliseconds(connected.QuadPart - begin.QuadPart),
                      milliseconds(completed.QuadPart - connected.QuadPart),
                      processorConnected - processorBefore,
                      ThreadProcessorTime() - processorConnected};
    const uint64_t hostCalls = win32::FaceCallCounts().invokes;
    const size_t launches = FinishedLaunches().size();  // they end before the next start
    if (count <= 10 || round + 1 == count) {
      std::printf(
          "  start %d: OnConnection %.2f ms, OnStartupComplete %.2f ms, together %.2f ms; this "
          "thread's processor time %.0f + %.0f ms; %llu Invokes of the host, %zu companions "
          "started\n",
          round + 1, start.connect, start.complete, start.Wall(), start.connectProcessor,
          start.completeProcessor, static_cast<unsigned long long>(hostCalls), launches);
    }
    starts.push_back(start);
  }
  double connectProcessor = 0, completeProcessor = 0;
  for (const Start& start : starts) {
    connectProcessor += start.connectProcessor;
    completeProcessor += start.completeProcessor;
  }
  const double n = static_cast<double>(starts.size());
  std::sort(starts.begin(), starts.end(),
            [](const Start& a, const Start& b) { return a.Wall() < b.Wall(); });
  std::printf(
      "  %zu starts: median %.2f ms, minimum %.2f ms; this thread's processor time %.1f ms a "
      "start on average (OnConnection %.1f ms, OnStartupComplete %.1f ms; goal 10 ms)\n",
      starts.size(), starts[starts.size() / 2].Wall(), starts.front().Wall(),
      (connectProcessor + completeProcessor) / n, connectProcessor / n, completeProcessor / n);
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
