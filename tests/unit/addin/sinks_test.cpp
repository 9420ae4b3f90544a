// The explorer and inspector sinks over the simulated host: an inspector
// whose item cannot be read, and how the host's Quit ends the add-in while
// the handler that does it still runs. Which inspectors get bars, and how
// they are refreshed and forgotten: inspector_bars*.qvx.
#include <gtest/gtest.h>

#include "addin/explorers_event_client.h"
#include "addin/inspectors_client.h"
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

}  // namespace
}  // namespace qvx::testing
