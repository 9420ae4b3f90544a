// Start-up of the add-in in the simulated host: connection (settings read)
// plus start-up complete (listener, sinks, session, first explorer's client,
// companion starts), for an unconfigured user and for a configured one with
// a catalogue of 0, 1,000 or 10,000 projects of 20 activities.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include "bench_platform.h"
#include "catalogue_text_sample.h"

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
    auto world = std::make_unique<bench::BenchAddin>(bench);
    state.ResumeTiming();
    world->Start();
    state.PauseTiming();
    world.reset();
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
