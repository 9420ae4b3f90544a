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

namespace qvx::winetest {

WINE_TEST(Startup, TheSettingsDecideWhichSectionsStart) {
  using Settings = std::vector<std::pair<std::wstring, std::wstring>>;
  const Settings allFlags = {{L"AutoSyncToDB", L"-1"},
                             {L"ReportIemsOnDueDateLapsedAutomatically", L"-1"},
                             {L"AutoCheckForUpgradeAtStartup", L"-1"}};
  const auto with = [&](Settings settings) {
    settings.insert(settings.end(), allFlags.begin(), allFlags.end());
    return settings;
  };
  const struct {
    const char* what;
    Settings settings;
    std::vector<std::string> sections;
  } cases[] = {
      {"unconfigured: the first-run section alone, whatever the flags say",
       with({{L"DBChoice", L"0"}, {L"DBConnectionString", L""}}),
       {"6"}},
      {"no settings key at all", {}, {"6"}},
      {"a database choice: sync, lapsed items and upgrade check, in that order",
       with({{L"DBChoice", L"1"}, {L"DBConnectionString", L""}}),
       {"28", "27", "19"}},
      {"a connection string alone counts as configured",
       {{L"DBChoice", L"0"},
        {L"DBConnectionString", L"C:\\Quorvix\\Data"},
        {L"AutoCheckForUpgradeAtStartup", L"1"}},
       {"19"}},
      {"configured with no flag set starts nothing",
       {{L"DBChoice", L"1"}, {L"DBConnectionString", L""}},
       {}},
  };
  for (const auto& c : cases) {
    ClearJournal();
    WriteSettings(c.settings);
    AddinSession session;
    session.Start();
    if (!CHECK_EQ(FinishedLaunches(), c.sections)) Note(c.what);
    if (!CHECK(Watcher().Take().empty())) Note(c.what);
  }
}

WINE_TEST(Startup, ReachesTheHostByNameAndFollowsItsEvents) {
  WriteSettings({{L"DBChoice", L"1"}, {L"DBConnectionString", L""}});
  AddinSession session;
  session.Start();
  auto application = session.At("");
  CHECK(application->CallCount("GetNamespace") >= 1);
  CHECK(application->CallCount("ActiveExplorer") >= 1);
  // The mail library is no registered class here: the add-in asks the host.
  const auto& asked = session.createRequests();
  CHECK(std::find(asked.begin(), asked.end(), "ZNBLib.ZNBMAPIUtils") != asked.end());

  // Events through connection points: the NewExplorer handler counts the explorers.
  auto explorers = session.At("Explorers");
  CHECK_EQ(explorers->HandlerCount("NewExplorer"), size_t{1});
  CHECK_EQ(session.At("Inspectors")->HandlerCount("NewInspector"), size_t{1});
  const int before = explorers->CallCount("Count");
  session.world().OpenExplorer(session.world().Tasks());
  CHECK(explorers->CallCount("Count") > before);
  CHECK(Watcher().Take().empty());
  DeleteTree(kSettingsKey);
}

}  // namespace qvx::winetest
