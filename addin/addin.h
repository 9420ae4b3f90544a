// QVXClientAddin: the add-in instance that a host creates, one per process.
//
// The COM layer (com/) and the simulator's host both drive it through these
// entry points, which stand for the host's add-in interface. Each is noexcept:
// failures are trapped and reported inside, never passed to the host.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/variant.h"
#include "platform/platform.h"
#include "ribbon/ribbon_callbacks.h"
#include "state/addin_state.h"

namespace qvx {

class QVXClientAddin {
 public:
  explicit QVXClientAddin(platform::Platform platform);
  ~QVXClientAddin();
  QVXClientAddin(const QVXClientAddin&) = delete;
  QVXClientAddin& operator=(const QVXClientAddin&) = delete;

  // IDTExtensibility2, as the host's events.
  void OnConnection(const Object& application, int connectMode, const Object& addInInst) noexcept;
  void OnStartupComplete() noexcept;
  void OnAddInsUpdate() noexcept {}
  void OnBeginShutdown() noexcept;
  void OnDisconnection(int removeMode) noexcept;
  // The class's own terminate event, when the host releases the object.
  void Terminate() noexcept;

  // IRibbonExtensibility.GetCustomUI: the markup for a ribbon id, "" for none.
  std::string GetCustomUI(std::string_view ribbonId) noexcept;

  // A ribbon callback by name, as the host calls it through IDispatch.
  // Arguments in the order of the callback's signature (the COM layer
  // reverses DISPPARAMS); a failure the callback leaves to the host ends in
  // `failure`.
  CallbackOutcome InvokeCallback(std::string_view name, std::vector<Variant>& args, Variant& result,
                                 std::optional<Failure>& failure) noexcept;
  // Whether a callback of that name exists (case-blind), for GetIDsOfNames.
  bool HasCallback(std::string_view name) const noexcept;

  AddinState& state() noexcept { return *state_; }

 private:
  std::unique_ptr<AddinState> state_;
};

}  // namespace qvx
