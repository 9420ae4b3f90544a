#include "addin/addin.h"

#include "addin/main_module.h"
#include "addin/upward_calls.h"
#include "ribbon/custom_ui.h"

namespace qvx {

QVXClientAddin::QVXClientAddin(platform::Platform platform)
    : state_(std::make_unique<AddinState>(platform)) {
  ConnectUpwardCalls(*state_);
}

QVXClientAddin::~QVXClientAddin() = default;

void QVXClientAddin::OnConnection(const Object& application, int, const Object&) noexcept {
  AddinState& s = *state_;
  Trapped(s, "Addin.OnConnection", [&](Line& line) {
    line = 10;
    s.main.objOutlook = application;
    line = 20;
    s.main.blnAddinConnected = true;
    s.main.phase = AddinPhase::Connected;
    line = 30;
    subFirstPoint(s);
  });
}

void QVXClientAddin::OnStartupComplete() noexcept {
  AddinState& s = *state_;
  Trapped(s, "Addin.OnConnection", [&](Line& line) {
    line = 10;
    bool restart = false;
    StartingPoint(s, restart);
    if (s.main.phase == AddinPhase::Connected) s.main.phase = AddinPhase::Started;
    s.err.Clear();
  });
}

void QVXClientAddin::OnBeginShutdown() noexcept {
  subKillObjects(*state_);
}

void QVXClientAddin::OnDisconnection(int) noexcept {
  AddinState& s = *state_;
  Trapped(s, "Addin.OnDisconnection", [&](Line& line) {
    line = 10;
    subKillObjects(s);
  });
}

void QVXClientAddin::Terminate() noexcept {
  subKillObjects(*state_);
}

std::string QVXClientAddin::GetCustomUI(std::string_view ribbonId) noexcept {
  return IRibbonExtensibility_GetCustomUI(*state_, ribbonId);
}

CallbackOutcome QVXClientAddin::InvokeCallback(std::string_view name, std::vector<Variant>& args,
                                               Variant& result,
                                               std::optional<Failure>& failure) noexcept {
  return InvokeRibbonCallback(*state_, name, args, result, failure);
}

bool QVXClientAddin::HasCallback(std::string_view name) const noexcept {
  return FindRibbonCallback(name) != nullptr;
}

}  // namespace qvx
