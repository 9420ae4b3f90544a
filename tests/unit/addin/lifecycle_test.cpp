// The add-in's life through its host events, over the simulated host.
#include <gtest/gtest.h>

#include "addin/main_module.h"
#include "apps/qvx-sim/world.h"
#include "companion/message_names.h"
#include "sim/explorer.h"

namespace qvx::testing {
namespace {

using scenario::World;

class Lifecycle : public ::testing::Test {
 protected:
  AddinState& s() { return world.addin().state(); }
  bool ListenerExists() {
    return platform::SocketMessageWindows::WindowExists(companion::kClientWindowCaption);
  }
  void Start() {
    world.addin().OnConnection(world.host().Application(), 1, Object());
    world.addin().OnStartupComplete();
  }
  World world;
};

TEST_F(Lifecycle, ConnectionReadsTheSettingsAndPutsNothingOnScreen) {
  world.registry().SetString(scenario::kSettingsKey, "DBChoice", "3");
  world.addin().OnConnection(world.host().Application(), 1, Object());
  EXPECT_EQ(s().main.phase, AddinPhase::Connected);
  EXPECT_TRUE(s().main.blnAddinConnected);
  ASSERT_NE(s().main.objMySettings, nullptr);
  EXPECT_EQ(s().main.objMySettings->DBChoice, 3);
  EXPECT_FALSE(s().main.objOutlook.IsNothing());
  EXPECT_FALSE(ListenerExists());
  EXPECT_TRUE(world.system().Launches().empty());
  EXPECT_EQ(s().main.objExplorersClient, nullptr);
}

TEST_F(Lifecycle, StartupBuildsEverythingAndOpensTheChannel) {
  Start();
  EXPECT_EQ(s().main.phase, AddinPhase::Started);
  EXPECT_EQ(s().main.strToolName, "Client Tool");
  EXPECT_TRUE(ListenerExists());
  EXPECT_NE(s().main.objExplorersClient, nullptr);
  EXPECT_NE(s().main.objInspectorsClient, nullptr);
  ASSERT_NE(s().main.colExplorerClients, nullptr);
  EXPECT_EQ(s().main.colExplorerClients->Count(), 1u);
  EXPECT_NE(s().main.colViewNames, nullptr);
  EXPECT_FALSE(s().main.objNameSpace.IsNothing());
  EXPECT_FALSE(s().err.pending());
}

TEST_F(Lifecycle, TearDownReleasesEverythingAndMayRunAgain) {
  Start();
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
  struct Row {
    const char* event;
    std::function<void(QVXClientAddin&)> raise;
  };
  const Row rows[] = {
      {"begin-shutdown", [](QVXClientAddin& a) { a.OnBeginShutdown(); }},
      {"disconnection", [](QVXClientAddin& a) { a.OnDisconnection(0); }},
      {"terminate", [](QVXClientAddin& a) { a.Terminate(); }},
  };
  for (const Row& row : rows) {
    World fresh;
    fresh.addin().OnConnection(fresh.host().Application(), 1, Object());
    fresh.addin().OnStartupComplete();
    row.raise(fresh.addin());
    EXPECT_EQ(fresh.addin().state().main.phase, AddinPhase::TornDown) << row.event;
    // A message for the gone window has nowhere to go.
    EXPECT_FALSE(fresh.windows().Post(companion::kClientWindowCaption, 0xC001, 1, 0)) << row.event;
  }
}

TEST_F(Lifecycle, ClosingOneOfTwoExplorersKeepsTheAddin) {
  Start();
  world.host().OpenExplorer(world.host().Calendar());
  ASSERT_EQ(world.host().Explorers().size(), 2u);
  subShutDownOutlook(s());
  EXPECT_EQ(s().main.phase, AddinPhase::Started);
  for (const auto& explorer : world.host().Explorers()) world.host().Close(*explorer);
  subShutDownOutlook(s());
  EXPECT_EQ(s().main.phase, AddinPhase::TornDown);
}

// A form that may refuse to unload, as a form with a cancelling unload event does.
class StubbornForm final : public LoadedForm {
 public:
  StubbornForm(std::string name, bool refuses, std::vector<std::string>& unloads)
      : name_(std::move(name)), refuses_(refuses), unloads_(unloads) {}
  std::string FormName() const override { return name_; }
  bool Unload() noexcept override {
    unloads_.push_back(name_);
    return !refuses_;
  }

 private:
  std::string name_;
  bool refuses_;
  std::vector<std::string>& unloads_;
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
  Start();
  bool restart = true;
  StartingPoint(s(), restart);
  // The channel is open again, once; the tear-down released the settings
  // record, so the start-up ends where it reads them, with one report.
  EXPECT_TRUE(ListenerExists());
  EXPECT_EQ(s().main.forms.size(), 1u);
  ASSERT_EQ(world.ui().Forms().size(), 1u);
  EXPECT_NE(world.ui().Forms()[0].controls[1].text.find("In Function: Main.StartingPoint\r\n"),
            std::string::npos);
  EXPECT_NE(world.ui().Forms()[0].controls[1].text.find("Exception Number: 91\r\n"),
            std::string::npos);
}

TEST(AppVersion, IsTheBuildsThreeNumbers) {
  EXPECT_EQ(GetAppVersion(), std::to_string(QVX_VERSION_MAJOR) + "." +
                                 std::to_string(QVX_VERSION_MINOR) + "." +
                                 std::to_string(QVX_VERSION_PATCH));
}

}  // namespace
}  // namespace qvx::testing
