// The explorer as the user works it, with a catalogue of 1,000 projects of
// 20 activities and four custom lists of 1,000 entries: a folder switch and a
// selection change on a ribbon host (16) and on a host with command bars
// only (11), and a full refresh of the explorer ribbon (all bars refreshed
// and the ribbon invalidated, then every callback of the shown ribbon asked
// again by the simulated Office).
#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include "addin/explorers_event_client.h"
#include "bench_platform.h"
#include "catalogue_text_sample.h"
#include "sim/appointment.h"
#include "sim/explorer.h"
#include "sim/ribbon/ribbon_addin.h"
#include "sim/ribbon/ribbon_host.h"
#include "state/addin_state.h"

namespace {

using namespace qvx;

std::string ListOf(const std::string& stem, int count) {
  std::string text;
  for (int i = 0; i < count; ++i) text += (i ? "\r\n" : "") + stem + " " + std::to_string(i);
  return text;
}

// A started add-in in a host whose explorer shows the calendar with two
// appointments, its explorer ribbon shown by the simulated Office.
struct ExplorerWorld : bench::BenchPlatform, bench::BenchAddin {
  // `version` 16 shows the ribbon; 11 has no ribbon and fills the command bars.
  explicit ExplorerWorld(int64_t version)
      : bench::BenchAddin(static_cast<bench::BenchPlatform&>(*this)) {
    host.SetVersion(std::to_string(version) + ".0.0.0");
    Set("DBChoice", "1");
    Set("DBConnectionString", "DSN=Timesheets");
    Set("AllowAppointmentItems", "-1");
    Set("AllowTaskItems", "-1");
    Set("showProjectTaskToolbar", "-1");
    Set("showCustomFieldsToolbar", "-1");
    Set("MyProjectsTasks", bench::CatalogueText(1000, 20));
    for (const char* list :
         {"CustomField1List", "CustomField2List", "CustomField3List", "CustomField4List"}) {
      Set(list, ListOf(list, 1000));
    }
    first = host.AddAppointment("First", DateSerial(2026, 3, 2), DateSerial(2026, 3, 3),
                                host.Calendar());
    second = host.AddAppointment("Second", DateSerial(2026, 3, 4), DateSerial(2026, 3, 5),
                                 host.Calendar());
    Start();
    explorer = host.ActiveExplorer();
    host.SwitchFolder(*explorer, host.Calendar());
    window = &ribbon.Open("Microsoft.Outlook.Explorer", explorer->AsObject());
    window->Ribbon();
  }
  std::shared_ptr<sim::SimAppointment> first, second;
  std::shared_ptr<sim::SimExplorer> explorer;
  sim::AddinRibbonClient client{[this]() -> QVXClientAddin& { return *addin; }};
  sim::RibbonHost ribbon{client};
  sim::RibbonWindow* window = nullptr;
};

// Calendar and tasks in turn: each switch rebuilds the explorer's bars.
void BM_FolderSwitch(benchmark::State& state) {
  ExplorerWorld world(state.range(0));
  bool calendar = false;
  for (auto _ : state) {
    world.host.SwitchFolder(*world.explorer, calendar ? world.host.Calendar() : world.host.Tasks());
    calendar = !calendar;
  }
}
BENCHMARK(BM_FolderSwitch)->Arg(16)->Arg(11)->Unit(benchmark::kMillisecond);

// One appointment and the other in turn: the bars empty and show the fields.
void BM_SelectionChange(benchmark::State& state) {
  ExplorerWorld world(state.range(0));
  bool one = false;
  for (auto _ : state) {
    world.host.Select(*world.explorer, {one ? world.first : world.second});
    one = !one;
  }
}
BENCHMARK(BM_SelectionChange)->Arg(16)->Arg(11)->Unit(benchmark::kMillisecond);

// The companion's "refresh the toolbars", then Office asks every callback of
// the shown explorer ribbon again.
void BM_ExplorerRibbonRefresh(benchmark::State& state) {
  ExplorerWorld world(state.range(0));
  for (auto _ : state) {
    world.addin->state().main.objExplorersClient->UpdateAllDisplayedToolbars();
    benchmark::DoNotOptimize(world.window->Ribbon().children.size());
  }
}
BENCHMARK(BM_ExplorerRibbonRefresh)->Arg(16)->Unit(benchmark::kMillisecond);

}  // namespace
