// The add-in's life through its host events, over the simulated host. What
// the connection and the start-up build: addin_connect.qvx and the startup
// scenarios.
#include <gtest/gtest.h>

#include "addin/main_module.h"
#include "apps/qvx-sim/world.h"
#include "companion/message_names.h"
#include "settings/my_settings.h"
#include "sim/explorer.h"
#include "unit/support/failure_report.h"

namespace qvx::testing {
namespace {

using scenario::World;

void Start(World& world) {
  world.addin().OnConnection(world.host().Application(), 1, Object());
  world.addin().OnStartupComplete();
}

class Lifecycle : public ::testing::Test {
 protected:
  AddinState& s() { return world.addin().state(); }
  bool ListenerExists() {
    return platform::SocketMessageWindows::WindowExists(companion::kClientWindowCaption);
  }
  World world;
};

TEST_F(Lifecycle, TearDownReleasesEverythingAndMayRunAgain) {
  Start(world);
  for (int round = 0; round < 3; ++round) {
    subKillObjects(s());
    const MainGlobals& m = s().main;
    EXPECT_EQ(m.phase, AddinPhase::TornDown);
    EXPECT_EQ(m.objMySettings, nullptr);
    EXPECT_EQ(m.objExplorersClient, nullptr);
    EXPECT_EQ(m.objInspectorsClient, nullptr);
    EXPECT_EQ(m.colExplorerClients, nullptr);
    EXPECT_EQ(m.colViewNames, nullptr);
    EXPECT_TRUE(m.objOutlook.IsNothing());
    EXPECT_TRUE(m.objNameSpace.IsNothing());
    EXPECT_TRUE(s().support.objFSO.IsNothing());
    EXPECT_EQ(m.fListenToLocal, nullptr);
    EXPECT_TRUE(m.forms.empty());
    EXPECT_FALSE(ListenerExists());
    EXPECT_FALSE(s().err.pending());
  }
  EXPECT_TRUE(world.ui().Forms().empty()) << "a tear-down reports nothing";
}

TEST_F(Lifecycle, EveryHostShutdownEventTearsDownAndNothingRestarts) {
  const std::pair<const char*, void (*)(QVXClientAddin&)> rows[] = {
      {"begin-shutdown", [](QVXClientAddin& a) { a.OnBeginShutdown(); }},
      {"disconnection", [](QVXClientAddin& a) { a.OnDisconnection(0); }},
      {"terminate", [](QVXClientAddin& a) { a.Terminate(); }}};
  for (const auto& [event, raise] : rows) {
    World fresh;
    Start(fresh);
    raise(fresh.addin());
    EXPECT_EQ(fresh.addin().state().main.phase, AddinPhase::TornDown) << event;
    // A message for the gone window has nowhere to go.
    EXPECT_FALSE(fresh.windows().Post(companion::kClientWindowCaption, 0xC001, 1, 0)) << event;
  }
}

// A form that may refuse to unload, as a form with a cancelling unload event does.
struct StubbornForm final : LoadedForm {
  StubbornForm(std::string name, bool refuses, std::vector<std::string>& unloads)
      : name(std::move(name)), refuses(refuses), unloads(unloads) {}
  std::string FormName() const override { return name; }
  bool Unload() noexcept override {
    unloads.push_back(name);
    return !refuses;
  }
  std::string name;
  bool refuses;
  std::vector<std::string>& unloads;
};

TEST_F(Lifecycle, AFormThatRefusesToUnloadStopsTheSweepInsteadOfStallingIt) {
  std::vector<std::string> unloads;
  auto& forms = s().main.forms;
  forms.push_back(std::make_shared<StubbornForm>("first", false, unloads));
  forms.push_back(std::make_shared<StubbornForm>("stubborn", true, unloads));
  forms.push_back(std::make_shared<StubbornForm>("last", false, unloads));
  subKillObjects(s());
  EXPECT_EQ(unloads, (std::vector<std::string>{"last", "stubborn"}));
  ASSERT_EQ(forms.size(), 2u);
  EXPECT_EQ(forms[1]->FormName(), "stubborn");
}

TEST_F(Lifecycle, ARestartTearsDownFirstAndBuildsOneChannelAgain) {
  Start(world);
  bool restart = true;
  StartingPoint(s(), restart);
  // The channel is open again, once; the tear-down released the settings
  // record, so their first reader, the view names' titles, fails, and only
  // that first failure is shown.
  EXPECT_TRUE(ListenerExists());
  EXPECT_EQ(s().main.forms.size(), 1u);
  ASSERT_EQ(world.ui().Forms().size(), 1u);
  EXPECT_TRUE(ReportIsTrap(world.ui().Forms()[0].controls[1].text, "Main.GetActualViewName"));
  EXPECT_NE(world.ui().Forms()[0].controls[1].text.find("Exception Number: 91\r\n"),
            std::string::npos);
}

}  // namespace
}  // namespace qvx::testing
