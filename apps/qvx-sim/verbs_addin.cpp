// addin connect / startup-complete / start / begin-shutdown / disconnect /
// terminate / shutdown, expect addin STATE
#include "apps/qvx-sim/verbs.h"
#include "apps/qvx-sim/world.h"
#include "state/main_globals.h"

namespace qvx::scenario {
namespace {

constexpr int kConnectAtStartup = 1;  // ext_cm_Startup
constexpr int kDisconnectHostShutdown = 0;

const std::vector<std::string> kPhases = {"not-connected", "connected", "started", "torn-down"};

void Connect(World& w) {
  w.addin().OnConnection(w.host().Application(), kConnectAtStartup, Object());
}

// A step of the host that takes no words.
void AddStep(VerbTable& table, const std::string& name, const std::string& help,
             std::function<void(World&)> step) {
  table.AddExact(name, name, help, 0, [step](World& w, const Args&) { step(w); });
}

}  // namespace

void RegisterAddinVerbs(VerbTable& table) {
  AddStep(table, "addin connect", "the host connects the add-in (settings are read)", Connect);
  AddStep(table, "addin startup-complete", "the host has started (the heavy start-up)",
          [](World& w) { w.addin().OnStartupComplete(); });
  AddStep(table, "addin start", "connect, then start-up complete", [](World& w) {
    Connect(w);
    w.addin().OnStartupComplete();
  });
  AddStep(table, "addin begin-shutdown", "the host begins to shut down",
          [](World& w) { w.addin().OnBeginShutdown(); });
  AddStep(table, "addin disconnect", "the host disconnects the add-in",
          [](World& w) { w.addin().OnDisconnection(kDisconnectHostShutdown); });
  AddStep(table, "addin terminate", "the host releases the add-in object",
          [](World& w) { w.addin().Terminate(); });
  AddStep(table, "addin shutdown", "begin-shutdown, then disconnect", [](World& w) {
    w.addin().OnBeginShutdown();
    w.addin().OnDisconnection(kDisconnectHostShutdown);
  });
  table.Add("expect addin", "expect addin not-connected|connected|started|torn-down",
            "where the add-in stands in its life", [](World& w, const Args& a) {
              a.Expect(1);
              a.Choice(0, kPhases);
              const AddinPhase phase =
                  w.HasAddin() ? w.addin().state().main.phase : AddinPhase::NotConnected;
              ExpectEqual(a.At(0), kPhases[static_cast<size_t>(phase)]);
            });
}

}  // namespace qvx::scenario
