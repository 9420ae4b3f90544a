#include "sim/ribbon/ribbon_addin.h"

#include <optional>

namespace qvx::sim {

std::string AddinRibbonClient::GetCustomUI(std::string_view ribbonId) {
  return addin_().GetCustomUI(ribbonId);
}

CallbackOutcome AddinRibbonClient::Call(std::string_view name, std::vector<Variant>& args,
                                        Variant& result) {
  std::optional<Failure> failure;
  return addin_().InvokeCallback(name, args, result, failure);
}

}  // namespace qvx::sim
