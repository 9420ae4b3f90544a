// The heap of the catalogue at 10,000 projects of 20 activities, while it
// is read (peak) and after (held), in MB, beside the code it replaced; the
// text itself is not counted. A program of its own, as the counting of every
// block would slow the timings of the others.
#include <benchmark/benchmark.h>

#include "bench_state.h"
#include "catalogue_text_reference.h"
#include "catalogue_text_sample.h"
#include "heap_counter.h"

namespace qvx::bench {
namespace {

template <class Code>
void BM_CatalogueHeap(benchmark::State& state) {
  BenchState b;
  const std::string text = CatalogueText(static_cast<size_t>(state.range(0)), 20);
  for (auto _ : state) {
    const HeapMark mark;
    typename Code::Tree tree;
    Code::Read(b.s, text, tree);
    state.counters["peak_MB"] = mark.PeakMegabytes();
    state.counters["held_MB"] = mark.HeldMegabytes();
  }
}
BENCHMARK_TEMPLATE(BM_CatalogueHeap, Ours)
    ->Arg(10000)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(BM_CatalogueHeap, Former)
    ->Arg(10000)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace qvx::bench
