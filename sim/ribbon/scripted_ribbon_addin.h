// ScriptedRibbonAddin: markup and ribbon callbacks of a test's or a
// script's own, in front of another add-in side (the real add-in, or none).
//
// Markup set for a ribbon id answers GetCustomUI for it; a callback defined
// here answers its name (found without regard to case, as the add-in's own
// table does); everything else goes on to the add-in behind. Every call that
// reaches this object is recorded, so a test can say exactly which callbacks
// the host called, in which order, with which arguments.
//
//   ScriptedRibbonAddin addin;
//   addin.SetMarkup("Microsoft.Outlook.Explorer", markup);
//   addin.Define("GetLabel", [](Args& a) { return Variant("Publish"); });
//   RibbonHost host(addin);
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "sim/member_table.h"
#include "sim/ribbon/ribbon_addin.h"

namespace qvx::sim {

// One call as the host made it, the control shown by its id.
struct RecordedRibbonCall {
  std::string name;                    // as the markup spells it
  std::vector<std::string> arguments;  // RibbonArgumentText of each
};

// An argument as a test reads it: a control by its Id, a Boolean as true or
// false, anything else as text.
std::string RibbonArgumentText(const Variant& argument);

class ScriptedRibbonAddin : public RibbonAddin {
 public:
  using Callback = std::function<Variant(Args& args)>;

  explicit ScriptedRibbonAddin(RibbonAddin* behind = nullptr) : behind_(behind) {}

  void SetMarkup(std::string_view ribbonId, std::string markup);
  // Defines or replaces the callback of that name.
  void Define(std::string_view name, Callback body);
  // The callback defined here under that name, or nullptr.
  const Callback* Find(std::string_view name) const;

  std::string GetCustomUI(std::string_view ribbonId) override;
  // A callback that throws a Failure answers Failed.
  CallbackOutcome Call(std::string_view name, std::vector<Variant>& args, Variant& result) override;

  const std::vector<std::string>& CustomUiRequests() const { return requests_; }
  const std::vector<RecordedRibbonCall>& Calls() const { return calls_; }
  void ClearCalls() { calls_.clear(); }

 private:
  RibbonAddin* behind_;
  std::map<std::string, std::string> markup_;  // by ribbon id, ordinal
  std::map<std::string, Callback> callbacks_;  // by folded name
  std::vector<std::string> requests_;
  std::vector<RecordedRibbonCall> calls_;
};

}  // namespace qvx::sim
