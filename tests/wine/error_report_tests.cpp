// A failure the host reports through EXCEPINFO reaches the add-in's central
// failure handling: the first one of an add-in's life is shown in the error
// report dialog, later ones are dropped, and the host sees no failure.
#include <windows.h>

#include <string>
#include <vector>

#include "harness/addin_session.h"
#include "harness/check.h"
#include "harness/companion_journal.h"
#include "harness/registry_keys.h"
#include "harness/ui_watcher.h"

namespace qvx::winetest {
namespace {

// MAPI_E_NOT_FOUND, as Outlook raises it for an object that is not there.
constexpr int32_t kHostError = static_cast<int32_t>(0x8004010F);

}  // namespace

TEST(ErrorReport, AHostFailureShowsTheFirstReport) {
  WriteSettings({{L"DBChoice", L"1"}, {L"AutoSyncToDB", L"-1"}});
  ClearJournal();
  Watcher().Take();
  AddinSession session;
  // The start-up reads ActiveExplorer once the explorers are followed.
  session.world().FailAt("ActiveExplorer", kHostError, "The explorer could not be reached.");
  ASSERT_EQ(session.Connect(), S_OK);
  EXPECT_EQ(session.StartupComplete(), S_OK);  // the host sees no failure

  const std::vector<SeenDialog> seen = Watcher().Take();
  ASSERT_EQ(seen.size(), size_t{1});
  EXPECT_TRUE(seen[0].caption == L"Unknown Exception" && !seen[0].messageBox);
  // The host's number and description, carried through EXCEPINFO.
  const std::wstring texts[] = {L"In Function: Main.StartingPoint", L"Source: Microsoft Outlook",
                                L"Exception Number: " + std::to_wstring(kHostError),
                                L"Exception Description: The explorer could not be reached."};
  for (const std::wstring& text : texts) EXPECT_TRUE(seen[0].Shows(text));
  // The start-up ended at the failure: no companion section was started.
  EXPECT_TRUE(FinishedLaunches().empty());

  // A later failure of the same add-in is dropped without a dialog.
  session.world().FailAt("Explorers.Count", kHostError, "Counting failed.");
  session.world().OpenExplorer(session.world().Tasks());
  EXPECT_TRUE(Watcher().Take().empty());

  // And the add-in still works: the channel is open and the tear-down runs.
  EXPECT_EQ(PostFromAnotherProcess(L"ZNB_QVX_Client", 1), 0u);
  EXPECT_TRUE(PumpUntil([] { return JournalLines() >= 1; }));
  EXPECT_EQ(FinishedLaunches(), std::vector<std::string>{"28"});
  EXPECT_EQ(session.BeginShutdown(), S_OK);
  EXPECT_TRUE(FindClientWindow() == nullptr);
}

}  // namespace qvx::winetest
