// Tagging long selections in the simulated host: every item is written and
// saved one by one, with the pump let through before each, so the cost per
// item is what a user feels on a selection of a thousand.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <vector>

#include "bench_state.h"
#include "catalogue_text_sample.h"
#include "core/dates.h"
#include "reporting/color_codes.h"
#include "reporting/tag_selection.h"
#include "settings/my_settings.h"
#include "sim/appointment.h"
#include "sim/explorer.h"
#include "sim/outlook.h"

namespace qvx::bench {
namespace {

// An add-in connected to a host whose calendar explorer has `count`
// appointments selected, the catalogue holding `projects` projects.
struct TaggingWorld : sim::SimulatedHost, BenchState {
  TaggingWorld(int count, int projects) {
    ConnectHost(host);
    s.main.objNameSpace = host.Application().Get("Session").ToObject();
    system.SetDoEventsHook([this] { host.Pending().RunPending(); });
    s.main.objMySettings = std::make_unique<cMySettings>();
    cMySettings& settings = *s.main.objMySettings;
    settings.MyProjectsTasks->FromString(s, CatalogueText(static_cast<size_t>(projects), 1));
    settings.Projects = settings.MyProjectsTasks->GetProjectsList(s);
    explorer = host.OpenExplorer(host.Calendar());
    for (int i = 0; i < count; ++i) {
      items.push_back(host.AddAppointment("Item " + std::to_string(i), DateSerial(2026, 3, 10),
                                          DateSerial(2026, 3, 11)));
    }
    host.Select(*explorer, items);
  }

  std::shared_ptr<sim::SimExplorer> explorer;
  std::vector<std::shared_ptr<sim::SimItem>> items;
};

// One value on each selected item: the property, the save, the pump.
void BM_TagSelection(benchmark::State& state) {
  TaggingWorld world(static_cast<int>(state.range(0)), 1);
  for (auto _ : state) {
    Actions::GetCurrentSelectedItem(world.s, "Field5Value", "free text", "");
  }
  if (!world.Clean()) state.SkipWithError("a failure was reported");
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_TagSelection)->Arg(10)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

// The colours of a large catalogue into the master category list.
void BM_LoadProjectColorCodes(benchmark::State& state) {
  TaggingWorld world(0, static_cast<int>(state.range(0)));
  world.s.main.objMySettings->AddProjectColorCodes = -1;
  for (auto _ : state) LoadProjectColorCodesToOutlook(world.s);
  if (!world.Clean()) state.SkipWithError("a failure was reported");
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_LoadProjectColorCodes)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace qvx::bench
