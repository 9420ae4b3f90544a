// The heap of the catalogue at 10,000 projects of 20 activities, while it
// is read (peak) and after (held), in MB, beside the code it replaced; the
// text itself is not counted. A program of its own, as the counting of every
// block would slow the timings of the others.
#include <benchmark/benchmark.h>

#include "bench_state.h"
#include "catalogue_text_reference.h"
#include "catalogue_text_sample.h"
#include "heap_counter.h"
#include "settings/tasks_per_project_list.h"

namespace qvx::bench {
namespace {

// The heap while `read` fills a fresh tree (peak) and after it (held), in
// MB, not counting the text itself.
template <class Tree, class Read>
void MeasureHeap(benchmark::State& state, Read read) {
  BenchState b;
  const std::string text = CatalogueText(static_cast<size_t>(state.range(0)), 20);
  for (auto _ : state) {
    const HeapMark mark;
    Tree tree;
    read(b.s, text, tree);
    state.counters["peak_MB"] = mark.PeakMegabytes();
    state.counters["held_MB"] = mark.HeldMegabytes();
  }
}

void BM_CatalogueHeap(benchmark::State& state) {
  MeasureHeap<cTasksPerProjectList>(
      state, [](AddinState& s, const std::string& text, cTasksPerProjectList& catalogue) {
        catalogue.FromString(s, text);
      });
}
BENCHMARK(BM_CatalogueHeap)->Arg(10000)->Iterations(1)->Unit(benchmark::kMillisecond);

void BM_CatalogueHeapReference(benchmark::State& state) {
  MeasureHeap<ReferenceCatalogue>(
      state, [](AddinState& s, const std::string& text, ReferenceCatalogue& catalogue) {
        ReferenceFromString(s, text, catalogue);
      });
}
BENCHMARK(BM_CatalogueHeapReference)->Arg(10000)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace qvx::bench
