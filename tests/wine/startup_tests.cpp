// OnConnection and OnStartupComplete: the settings as the companion left
// them in the registry decide which companion sections start, each a real
// process started in order. The other settings' rows are startup scenarios'.
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
  const struct {
    const wchar_t* dbChoice;
    std::vector<std::string> sections;
  } cases[] = {
      {L"0", {"6"}},  // unconfigured: the first-run section alone, whatever the flags say
      {L"1", {"28", "27", "19"}},  // sync, lapsed items and upgrade check, in that order
  };
  for (const auto& c : cases) {
    ClearJournal();
    WriteSettings({{L"DBChoice", c.dbChoice},
                   {L"DBConnectionString", L""},
                   {L"AutoSyncToDB", L"-1"},
                   {L"ReportIemsOnDueDateLapsedAutomatically", L"-1"},
                   {L"AutoCheckForUpgradeAtStartup", L"-1"}});
    AddinSession session;
    session.Start();
    EXPECT_EQ(FinishedLaunches(), c.sections);
    EXPECT_TRUE(Watcher().Take().empty());
  }
}

}  // namespace qvx::winetest
