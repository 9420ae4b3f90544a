// The explorer and inspector sinks over the simulated host: which inspectors
// get bars, and how a window's Close or the host's Quit ends the add-in
// while the handler that does it still runs.
#include <gtest/gtest.h>

#include "addin/explorers_event_client.h"
#include "addin/inspectors_client.h"
#include "commandbars/custom_fields_toolbar.h"
#include "commandbars/explorer_client.h"
#include "commandbars/standard_toolbar.h"
#include "companion/message_names.h"
#include "sim/inspector.h"
#include "sim/item_classes.h"
#include "unit/reporting/tagging_fixture.h"

namespace qvx::testing {
namespace {

class Sinks : public TaggingTest {
 protected:
  void Start() {
    Set("DBChoice", "1");
    world.addin().OnConnection(world.host().Application(), 1, Object());
    world.addin().OnStartupComplete();
  }
  cInspectors& inspectors() { return *s().main.objInspectorsClient; }
  std::vector<std::string> StandardKeys() {
    std::vector<std::string> keys;
    for (const auto& entry : *inspectors().colInspectorsTB) keys.push_back(entry.key);
    return keys;
  }
  bool ListenerExists() {
    return platform::SocketMessageWindows::WindowExists(companion::kClientWindowCaption);
  }
};

TEST_F(Sinks, InspectorsGetBarsOnlyForTheItemsTheAddinWorksOn) {
  // Each message class and whether it gets a bar with only tasks, then only
  // appointments, allowed.
  const std::tuple<const char*, bool, bool> rows[] = {
      {"IPM.Note", false, false},
      {"IPM.Task", true, false},
      {"IPM.TaskRequest", true, false},
      {"IPM.Appointment", false, true},
      {"IPM.OLE.CLASS.{00061055-0000-0000-C000-000000000046}", false, true}};
  for (const bool tasks : {true, false}) {
    scenario::World fresh;
    fresh.registry().SetString(scenario::kSettingsKey, "DBChoice", "1");
    fresh.registry().SetString(scenario::kSettingsKey, "AllowTaskItems", tasks ? "-1" : "0");
    fresh.registry().SetString(scenario::kSettingsKey, "AllowAppointmentItems", tasks ? "0" : "-1");
    fresh.addin().OnConnection(fresh.host().Application(), 1, Object());
    fresh.addin().OnStartupComplete();
    const auto& bars = *fresh.addin().state().main.objInspectorsClient->colInspectorsTB;
    for (const auto& [messageClass, withTasks, withAppointments] : rows) {
      auto item = fresh.host().NewItem(1);
      item->SetField("MessageClass", Variant(std::string(messageClass)));
      auto inspector = fresh.host().OpenInspector(item);
      EXPECT_EQ(bars.Count(), (tasks ? withTasks : withAppointments) ? 1u : 0u)
          << messageClass << (tasks ? " with tasks" : " with appointments");
      fresh.host().Close(*inspector);
    }
    EXPECT_TRUE(fresh.ui().Forms().empty());
  }
}

TEST_F(Sinks, AnInspectorWhoseItemCannotBeReadStillOpensAndIsReported) {
  Set("AllowAppointmentItems", "-1");
  Start();
  auto item = host().AddAppointment("Locked", DateSerial(2026, 3, 2), DateSerial(2026, 3, 2));
  host().FailAt("Session.GetDefaultFolder(9).Items.Item(1).EntryID", -2147467259,
                "The operation failed.");
  auto inspector = host().OpenInspector(item);
  EXPECT_TRUE(Reported("Inspectors.NewInspector"));
  EXPECT_FALSE(inspector->closed());
  EXPECT_EQ(host().Inspectors().size(), 1u);
  EXPECT_TRUE(StandardKeys().empty()) << "no bar is entered without its key";
}

// Closing the last explorer from inside its own client: explorer_last_close.qvx.
TEST_F(Sinks, TheHostsQuitTearsDownOnceWhateverIsStillOpen) {
  Start();
  host().OpenExplorer(host().Calendar());
  ASSERT_EQ(s().main.colExplorerClients->Count(), 2u);
  host().Quit();
  EXPECT_EQ(s().main.phase, AddinPhase::TornDown);
  EXPECT_FALSE(ListenerExists());
  EXPECT_EQ(s().main.colExplorerClients, nullptr);
  EXPECT_TRUE(world.ui().Forms().empty());
  // The explorers stay open; closing them now reaches nothing of the add-in.
  for (const auto& explorer : host().Explorers()) host().Close(*explorer);
  EXPECT_TRUE(world.ui().Forms().empty());
}

// Appointments A and B, each in its own inspector with both bars, B's
// active: a refresh reaches the explorer clients by key and only the active
// inspector's bars; closing an inspector forgets the bars kept under its item.
TEST_F(Sinks, InspectorBarsAreRefreshedWhileActiveAndForgottenWhenClosed) {
  Set("AllowAppointmentItems", "-1");
  Set("CustomList2Active", "-1");
  Start();
  auto a = host().AddAppointment("A", DateSerial(2026, 3, 2), DateSerial(2026, 3, 2));
  auto b = host().AddAppointment("B", DateSerial(2026, 3, 2), DateSerial(2026, 3, 2));
  auto onA = host().OpenInspector(a);
  auto onB = host().OpenInspector(b);
  auto& bars = *inspectors().colInspectorsTB;
  auto& custom = *inspectors().colInspectorsCustomFieldsTB;
  ASSERT_EQ(StandardKeys(), (std::vector<std::string>{a->EntryId(), b->EntryId()}));
  ASSERT_EQ(custom.Count(), 2u);
  s().main.objExplorersClient->UpdateAllDisplayedToolbars();
  // Two entries, one inspector on B: B's bars twice, A's not at all.
  EXPECT_EQ((*bars.Find(b->EntryId()))->toolbarUpdates, 2);
  EXPECT_EQ((*custom.Find(b->EntryId()))->toolbarUpdates, 2);
  EXPECT_EQ((*bars.Find(a->EntryId()))->toolbarUpdates, 0);
  EXPECT_EQ(s().main.colExplorerClients->Entries()[0].value->toolbarUpdates, 1);
  // With an explorer active, no inspector is refreshed.
  host().Activate(*host().ActiveExplorer());
  s().main.objExplorersClient->UpdateAllDisplayedToolbars();
  EXPECT_EQ((*bars.Find(b->EntryId()))->toolbarUpdates, 2);
  EXPECT_EQ(s().main.colExplorerClients->Entries()[0].value->toolbarUpdates, 2);

  std::weak_ptr<cStandardTB> barOfA = *bars.Find(a->EntryId());
  host().Close(*onA);
  EXPECT_EQ(StandardKeys(), std::vector<std::string>{b->EntryId()});
  EXPECT_EQ(custom.Count(), 1u);
  EXPECT_FALSE(custom.Exists(a->EntryId()));
  EXPECT_TRUE(barOfA.expired()) << "nothing holds the closed inspector's bar any more";
  host().Close(*onB);
  EXPECT_TRUE(StandardKeys().empty());
  EXPECT_EQ(custom.Count(), 0u);
  EXPECT_TRUE(world.ui().Forms().empty());
}

}  // namespace
}  // namespace qvx::testing
