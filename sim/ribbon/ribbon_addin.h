// The add-in as the simulated ribbon host reaches it: GetCustomUI for a
// ribbon id, and callbacks by the names the markup binds, passed on as the
// markup spells them (the add-in resolves them without regard to case, as
// IDispatch does).
//
// AddinRibbonClient reaches the real add-in through the callback table the
// COM object uses; ScriptedRibbonAddin (scripted_ribbon_addin.h) stands in
// for markup and callbacks that the add-in does not have.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "addin/addin.h"
#include "core/variant.h"

namespace qvx::sim {

class RibbonAddin {
 public:
  virtual ~RibbonAddin() = default;
  // IRibbonExtensibility.GetCustomUI; "" for no customisation.
  virtual std::string GetCustomUI(std::string_view ribbonId) = 0;
  // A callback by name; arguments in signature order, the control first.
  virtual CallbackOutcome Call(std::string_view name, std::vector<Variant>& args,
                               Variant& result) = 0;
};

class AddinRibbonClient : public RibbonAddin {
 public:
  // `addin` gives the add-in when the host first needs it.
  explicit AddinRibbonClient(std::function<QVXClientAddin&()> addin) : addin_(std::move(addin)) {}
  std::string GetCustomUI(std::string_view ribbonId) override;
  // A failure the callback leaves to the host is dropped: the host shows the
  // control as if the callback were missing, and says nothing.
  CallbackOutcome Call(std::string_view name, std::vector<Variant>& args, Variant& result) override;

 private:
  std::function<QVXClientAddin&()> addin_;
};

}  // namespace qvx::sim
