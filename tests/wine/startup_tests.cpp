// OnConnection and OnStartupComplete: the settings as the companion left
// them in the registry decide which companion sections start, and the add-in
// finds its way around the host by name and by events.
#include <windows.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "harness/addin_session.h"
#include "harness/check.h"
#include "harness/companion_journal.h"
#include "harness/registry_keys.h"
#include "harness/ui_watcher.h"
#include "sim/explorer.h"
#include "sim/folder.h"

namespace qvx::winetest {
namespace {

using Settings = std::vector<std::pair<std::wstring, std::wstring>>;

struct StartCase {
  const char* what;
  Settings settings;
  std::vector<std::string> sections;
};

const Settings kAllFlagsSet = {{L"AutoSyncToDB", L"-1"},
                               {L"ReportIemsOnDueDateLapsedAutomatically", L"-1"},
                               {L"AutoCheckForUpgradeAtStartup", L"-1"}};

Settings With(Settings base, const Settings& more) {
  base.insert(base.end(), more.begin(), more.end());
  return base;
}

// Configured, with nothing to start: the quiet start of the other tests.
const Settings kQuietStart = {{L"DBChoice", L"1"}, {L"DBConnectionString", L""}};

}  // namespace

WINE_TEST(Startup, TheSettingsDecideWhichSectionsStart) {
  const StartCase cases[] = {
      {"unconfigured: the first-run section alone, whatever the flags say",
       With({{L"DBChoice", L"0"}, {L"DBConnectionString", L""}}, kAllFlagsSet),
       {"6"}},
      {"no settings key at all", {}, {"6"}},
      {"a database choice: sync, lapsed items and upgrade check, in that order",
       With({{L"DBChoice", L"1"}, {L"DBConnectionString", L""}}, kAllFlagsSet),
       {"28", "27", "19"}},
      {"a connection string alone counts as configured",
       {{L"DBChoice", L"0"},
        {L"DBConnectionString", L"C:\\Quorvix\\Data"},
        {L"AutoCheckForUpgradeAtStartup", L"1"}},
       {"19"}},
      {"configured with no flag set starts nothing", kQuietStart, {}},
  };
  for (const StartCase& c : cases) {
    ClearJournal();
    WriteSettings(c.settings);
    AddinSession session;
    session.Start();
    if (!CHECK_EQ(FinishedLaunches(), c.sections)) Note(c.what);
    if (!CHECK(Watcher().Take().empty())) Note(c.what);
  }
  DeleteTree(kSettingsKey);
}

WINE_TEST(Startup, AHostWithoutAnExplorerGetsOneOnTheCalendar) {
  ClearJournal();
  WriteSettings(kQuietStart);
  sim::Outlook::Options options;
  options.withExplorer = false;
  AddinSession session(options);
  session.Start();
  const auto explorers = session.world().Explorers();
  REQUIRE_EQ(explorers.size(), size_t{1});
  CHECK(explorers[0]->folder() == session.world().Calendar());
  CHECK(explorers[0]->displayed());
  CHECK(Watcher().Take().empty());
}

WINE_TEST(Startup, FollowsNewExplorersThroughTheConnectionPoint) {
  ClearJournal();
  WriteSettings(kQuietStart);
  AddinSession session;
  session.Start();
  auto explorers = session.host().At("Explorers");
  auto inspectors = session.host().At("Inspectors");
  CHECK_EQ(explorers->HandlerCount("NewExplorer"), size_t{1});
  CHECK_EQ(inspectors->HandlerCount("NewInspector"), size_t{1});

  // The add-in's NewExplorer handler counts the explorers of the host.
  const int before = explorers->CallCount("Count");
  session.world().OpenExplorer(session.world().Tasks());
  CHECK(explorers->CallCount("Count") > before);
  CHECK(Watcher().Take().empty());
}

WINE_TEST(Startup, ReachesTheHostByName) {
  ClearJournal();
  WriteSettings(kQuietStart);
  AddinSession session;
  session.Start();
  auto application = session.host().At("");
  CHECK(application->CallCount("GetNamespace") >= 1);
  CHECK(application->CallCount("Explorers") >= 1);
  CHECK(application->CallCount("ActiveExplorer") >= 1);
  // The mail library is no registered class here: the add-in asks the host.
  const auto& asked = session.host().createRequests();
  CHECK(std::find(asked.begin(), asked.end(), "ZNBLib.ZNBMAPIUtils") != asked.end());
  CHECK(Watcher().Take().empty());
  DeleteTree(kSettingsKey);
}

}  // namespace qvx::winetest
