#include "sim/ribbon/scripted_ribbon_addin.h"

#include "core/failure.h"
#include "core/text.h"

namespace qvx::sim {

std::string RibbonArgumentText(const Variant& argument) {
  if (argument.IsObject()) {
    const Object object = argument.ToObject();
    if (object.TypeName() == "IRibbonControl") return object.Get("Id").ToText();
    return object.TypeName();
  }
  if (const bool* flag = argument.As<bool>()) return *flag ? "true" : "false";
  return argument.ToText();
}

void ScriptedRibbonAddin::SetMarkup(std::string_view ribbonId, std::string markup) {
  markup_[std::string(ribbonId)] = std::move(markup);
}

void ScriptedRibbonAddin::Define(std::string_view name, Callback body) {
  callbacks_[FoldCase(name)] = std::move(body);
}

const ScriptedRibbonAddin::Callback* ScriptedRibbonAddin::Find(std::string_view name) const {
  auto it = callbacks_.find(FoldCase(name));
  return it == callbacks_.end() ? nullptr : &it->second;
}

std::string ScriptedRibbonAddin::GetCustomUI(std::string_view ribbonId) {
  requests_.emplace_back(ribbonId);
  if (auto it = markup_.find(std::string(ribbonId)); it != markup_.end()) return it->second;
  return behind_ ? behind_->GetCustomUI(ribbonId) : std::string();
}

CallbackOutcome ScriptedRibbonAddin::Call(std::string_view name, std::vector<Variant>& args,
                                          Variant& result) {
  RecordedRibbonCall& call = calls_.emplace_back();
  call.name = name;
  for (const Variant& a : args) call.arguments.push_back(RibbonArgumentText(a));
  result = Variant();
  auto it = callbacks_.find(FoldCase(name));
  if (it == callbacks_.end()) {
    return behind_ ? behind_->Call(name, args, result) : CallbackOutcome::UnknownName;
  }
  try {
    result = it->second(args);
    return CallbackOutcome::Done;
  } catch (const Failure&) {
    result = Variant();
    return CallbackOutcome::Failed;
  }
}

}  // namespace qvx::sim
