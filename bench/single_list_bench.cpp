// The keyed list at the size of a long drop-down: reading 10,000 entries
// against the legacy exchange sort, and one ribbon refresh of all rows.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>

#include "bench_state.h"
#include "exchange_sort_reference.h"
#include "settings/single_list.h"

namespace qvx::bench {
namespace {

constexpr char kBreak[] = "\r\n";

// Distinct entries in random order and mixed case, a few repeated in another case.
std::string ListText(size_t count) {
  std::mt19937 random(2024);
  std::vector<std::string> lines;
  for (size_t i = 0; i < count; ++i) {
    std::string line = (random() % 2 ? "Item " : "item ") + std::to_string(random() % 1000000);
    if (i % 50 == 0) line += " \xC3\xA9tude";
    lines.push_back(std::move(line));
  }
  for (size_t i = 0; i < count / 100; ++i) lines.push_back(UCase(lines[i * 7]));
  std::shuffle(lines.begin(), lines.end(), random);
  return Join(lines, kBreak);
}

// Ours, or the legacy reading (quadratic: one round) of the same text,
// which must give the same rows in the same order.
void BM_SingleListFromString(benchmark::State& state) {
  BenchState b;
  const std::string text = ListText(static_cast<size_t>(state.range(0)));
  const bool legacy = state.range(1) != 0;
  cSingleList list;
  std::vector<std::string> rows;
  for (auto _ : state) {
    if (legacy) {
      rows = ReferenceFromString(text, kBreak);
    } else {
      list.FromString(b.s, text, kBreak);
    }
    benchmark::ClobberMemory();
  }
  if (legacy) {
    list.FromString(b.s, text, kBreak);
    std::vector<std::string> ours;
    for (const auto& entry : list.dicList) ours.push_back(entry.value);
    if (ours != rows) state.SkipWithError("the orders differ");
  }
  if (!b.Clean()) state.SkipWithError("a failure was reported");
  state.counters["entries"] = static_cast<double>(list.dicList.Count());
}
BENCHMARK(BM_SingleListFromString)
    ->ArgNames({"entries", "legacy"})
    ->ArgsProduct({{1000, 10000}, {0, 1}})
    ->Unit(benchmark::kMillisecond);

// One refresh of a drop-down as the ribbon asks for it: per row its label by
// index, then the selected row's index by text.
void BM_SingleListRibbonRefresh(benchmark::State& state) {
  BenchState b;
  cSingleList list;
  list.FromString(b.s, ListText(static_cast<size_t>(state.range(0))), kBreak);
  const auto count = static_cast<int16_t>(list.dicList.Count());
  for (auto _ : state) {
    int64_t sum = 0;
    for (int16_t i = 0; i < count; ++i) {
      const std::string label = list.GetItem(b.s, i);
      sum += list.getItemIndex(b.s, list.dicList.Entries()[static_cast<size_t>(i)].value);
      benchmark::DoNotOptimize(label.data());
    }
    benchmark::DoNotOptimize(sum);
  }
  if (!b.Clean()) state.SkipWithError("a failure was reported");
  state.SetItemsProcessed(state.iterations() * count);
}
BENCHMARK(BM_SingleListRibbonRefresh)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace qvx::bench
