// OnConnection and OnStartupComplete: the settings as the companion left
// them in the registry decide which companion sections start.
#include <windows.h>

#include <string>
#include <utility>
#include <vector>

#include "harness/addin_session.h"
#include "harness/check.h"
#include "harness/companion_journal.h"
#include "harness/registry_keys.h"
#include "harness/ui_watcher.h"

namespace qvx::winetest {

TEST(Startup, TheSettingsDecideWhichSectionsStart) {
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
    SCOPED_TRACE(c.what);
    EXPECT_EQ(FinishedLaunches(), c.sections);
    EXPECT_TRUE(Watcher().Take().empty());
  }
}

}  // namespace qvx::winetest
