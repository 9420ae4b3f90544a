// The catalogue at 10,000 projects of 20 activities each: reading and
// writing its text beside the code it replaced, the project names, and a
// ribbon refresh of activities.
#include <benchmark/benchmark.h>

#include <cstdlib>

#include "bench_state.h"
#include "catalogue_text_reference.h"
#include "catalogue_text_sample.h"

namespace qvx::bench {
namespace {

// Reading starts on an empty catalogue and a settled heap, as at start-up:
// the tree of the round before is freed, and the allocator's deferred merging
// of its blocks (which a request of a page sets off) done, outside the
// measurement.
template <class Tree>
void FreeBeforeReading(Tree& tree) {
  tree = {};
  void* page = std::malloc(4096);
  benchmark::DoNotOptimize(page);
  std::free(page);
}

template <class Code>
void BM_CatalogueFromString(benchmark::State& state) {
  BenchState b;
  const std::string text = CatalogueText(static_cast<size_t>(state.range(0)), 20);
  typename Code::Tree catalogue;
  for (auto _ : state) {
    state.PauseTiming();
    FreeBeforeReading(catalogue);
    state.ResumeTiming();
    Code::Read(b.s, text, catalogue);
    benchmark::DoNotOptimize(Code::Count(catalogue));
  }
  if (!b.Clean() || Code::Count(catalogue) != static_cast<size_t>(state.range(0))) {
    state.SkipWithError("the catalogue was not read whole");
  }
  state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(text.size()));
}
BENCHMARK_TEMPLATE(BM_CatalogueFromString, Ours)
    ->Arg(1000)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(BM_CatalogueFromString, Former)->Arg(10000)->Unit(benchmark::kMillisecond);

template <class Code>
void BM_CatalogueToString(benchmark::State& state) {
  BenchState b;
  const std::string text = CatalogueText(static_cast<size_t>(state.range(0)), 20);
  typename Code::Tree catalogue;
  Code::Read(b.s, text, catalogue);
  std::string written;
  for (auto _ : state) {
    written = Code::Write(b.s, catalogue);
    benchmark::DoNotOptimize(written.data());
  }
  if (!b.Clean() || written != text) state.SkipWithError("the text did not round-trip");
  state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(text.size()));
}
BENCHMARK_TEMPLATE(BM_CatalogueToString, Ours)
    ->Arg(1000)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(BM_CatalogueToString, Former)->Arg(10000)->Unit(benchmark::kMillisecond);

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
BENCHMARK(BM_CatalogueGetProjectsList)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

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
BENCHMARK(BM_CatalogueRibbonRefreshAllProjects)
    ->Arg(1000)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace qvx::bench
