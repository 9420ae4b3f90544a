// The catalogue at 10,000 projects of 20 activities each: reading and
// writing its text, the project names, and a ribbon refresh of activities.
#include <benchmark/benchmark.h>

#include <random>

#include "bench_state.h"
#include "settings/tasks_per_project_list.h"

namespace qvx::bench {
namespace {

std::string CatalogueText(size_t projects, size_t activities) {
  std::mt19937 random(7);
  std::string text;
  for (size_t p = 0; p < projects; ++p) {
    if (p > 0) text += "\r\n";
    text += "Project " + std::to_string(p) + "_COMMA_ phase " + std::to_string(random() % 9) + "," +
            std::to_string(random() % 25) + ",2011-" + std::to_string(1 + random() % 12) + "-" +
            std::to_string(1 + random() % 28) + ",:";
    for (size_t a = 0; a < activities; ++a) {
      if (a > 0) text += ";";
      text += "Activity " + std::to_string(a) + "_COLON_ work,";
      if (random() % 2) text += "2012-" + std::to_string(1 + random() % 12) + "-15";
    }
  }
  return text;
}

void BM_CatalogueFromString(benchmark::State& state) {
  BenchState b;
  const std::string text = CatalogueText(static_cast<size_t>(state.range(0)), 20);
  cTasksPerProjectList catalogue;
  for (auto _ : state) {
    catalogue.FromString(b.s, text);
    benchmark::DoNotOptimize(catalogue.dicList.Count());
  }
  if (!b.Clean() || catalogue.dicList.Count() != static_cast<size_t>(state.range(0))) {
    state.SkipWithError("the catalogue was not read whole");
  }
  state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(text.size()));
  state.counters["projects"] = static_cast<double>(catalogue.dicList.Count());
}
BENCHMARK(BM_CatalogueFromString)->Arg(10000)->Unit(benchmark::kMillisecond);

void BM_CatalogueToString(benchmark::State& state) {
  BenchState b;
  const std::string text = CatalogueText(static_cast<size_t>(state.range(0)), 20);
  cTasksPerProjectList catalogue;
  catalogue.FromString(b.s, text);
  std::string written;
  for (auto _ : state) {
    written = catalogue.ToString(b.s);
    benchmark::DoNotOptimize(written.data());
  }
  if (!b.Clean() || written != text) state.SkipWithError("the text did not round-trip");
  state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(text.size()));
}
BENCHMARK(BM_CatalogueToString)->Arg(10000)->Unit(benchmark::kMillisecond);

void BM_CatalogueGetProjectsList(benchmark::State& state) {
  BenchState b;
  cTasksPerProjectList catalogue;
  catalogue.FromString(b.s, CatalogueText(static_cast<size_t>(state.range(0)), 20));
  for (auto _ : state) {
    const std::shared_ptr<cSingleList> names = catalogue.GetProjectsList(b.s);
    benchmark::DoNotOptimize(names->dicList.Count());
  }
  if (!b.Clean()) state.SkipWithError("a failure was reported");
}
BENCHMARK(BM_CatalogueGetProjectsList)->Arg(10000)->Unit(benchmark::kMillisecond);

// Per project: find it by name, then per activity row its label and index.
void BM_CatalogueRibbonRefreshAllProjects(benchmark::State& state) {
  BenchState b;
  cTasksPerProjectList catalogue;
  catalogue.FromString(b.s, CatalogueText(static_cast<size_t>(state.range(0)), 20));
  const std::shared_ptr<cSingleList> names = catalogue.GetProjectsList(b.s);
  for (auto _ : state) {
    int64_t sum = 0;
    for (const auto& name : names->dicList) {
      cTasksPerProject& project = **catalogue.dicList.Find(name.value);
      const auto rows = static_cast<int16_t>(project.dicList.Count());
      for (int16_t i = 0; i < rows; ++i) {
        const std::string label = project.GetItem(b.s, i);
        sum += project.getItemIndex(b.s, label);
      }
    }
    benchmark::DoNotOptimize(sum);
  }
  if (!b.Clean()) state.SkipWithError("a failure was reported");
}
BENCHMARK(BM_CatalogueRibbonRefreshAllProjects)->Arg(10000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace qvx::bench
