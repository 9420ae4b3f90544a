// Start-up of the add-in in the simulated host: connection (settings read)
// plus start-up complete (listener, sinks, session, first explorer's client,
// companion starts), for an unconfigured user and for a configured one with
// a catalogue of 0, 1,000 or 10,000 projects of 20 activities.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include "addin/addin.h"
#include "bench_platform.h"
#include "catalogue_text_sample.h"
#include "platform/posix/posix_objects.h"
#include "platform/posix/posix_system.h"
#include "platform/posix/scripted_ui.h"
#include "platform/posix/socket_message_windows.h"
#include "sim/outlook.h"

namespace {

using namespace qvx;

// The platform of one run, with a configured user's settings.
struct Bench : bench::BenchPlatform {
  Bench(bool configured, size_t projects) {
    if (!configured) return;
    Set("DBChoice", "1");
    Set("DBConnectionString", "DSN=Timesheets");
    Set("AutoSyncToDB", "-1");
    Set("ReportIemsOnDueDateLapsedAutomatically", "-1");
    Set("AutoCheckForUpgradeAtStartup", "-1");
    if (projects > 0) Set("MyProjectsTasks", bench::CatalogueText(projects, 20));
  }
};

void RunStartup(benchmark::State& state, bool configured) {
  Bench bench(configured, configured ? static_cast<size_t>(state.range(0)) : 0);
  for (auto _ : state) {
    state.PauseTiming();
    platform::PosixSystemServices system(bench.options);
    platform::PosixObjectFactory objects(system);
    platform::ScriptedUserInterface ui;
    platform::SocketMessageWindows windows;
    sim::Outlook host;
    objects.RegisterRunning("Outlook.Application", [&host] { return host.Application(); });
    auto addin = std::make_unique<QVXClientAddin>(platform::Platform{.registry = &bench.registry,
                                                                     .objects = &objects,
                                                                     .ui = &ui,
                                                                     .system = &system,
                                                                     .windows = &windows});
    const Object application = host.Application();
    state.ResumeTiming();

    addin->OnConnection(application, 1, Object());
    addin->OnStartupComplete();

    state.PauseTiming();
    addin->OnBeginShutdown();
    addin.reset();
    state.ResumeTiming();
  }
}

void BM_StartupUnconfigured(benchmark::State& state) {
  RunStartup(state, false);
}
void BM_StartupConfigured(benchmark::State& state) {
  RunStartup(state, true);
}

BENCHMARK(BM_StartupUnconfigured)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_StartupConfigured)->Arg(0)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);

}  // namespace
