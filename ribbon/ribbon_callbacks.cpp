#include "ribbon/ribbon_callbacks.h"

#include <array>
#include <new>

#include "core/text.h"
#include "state/addin_state.h"

namespace qvx {
namespace {

void OnLoadCallback(AddinState& s, std::vector<Variant>& args, Variant&) {
  OnLoad(s, args[0].ToObject());
}

// Later callbacks join here, one row each.
constexpr std::array kCallbacks = {
    RibbonCallback{"OnLoad", 1, &OnLoadCallback},
};

}  // namespace

void OnLoad(AddinState& s, const Object& ribbon) {
  s.main.objRibbonUI = ribbon;
}

const RibbonCallback* FindRibbonCallback(std::string_view name) noexcept {
  // The names are ASCII; an ASCII compare never allocates.
  for (const char c : name) {
    if (static_cast<unsigned char>(c) >= 0x80) return nullptr;
  }
  for (const RibbonCallback& callback : kCallbacks) {
    if (EqualsText(callback.name, name)) return &callback;
  }
  return nullptr;
}

CallbackOutcome InvokeRibbonCallback(AddinState& s, std::string_view name,
                                     std::vector<Variant>& args, Variant& result,
                                     std::optional<Failure>& failure) noexcept {
  const RibbonCallback* callback = FindRibbonCallback(name);
  if (!callback) return CallbackOutcome::UnknownName;
  if (args.size() != callback->argumentCount) return CallbackOutcome::WrongArgumentCount;
  try {
    result = Variant();  // a callback without a result answers nothing
    callback->body(s, args, result);
    return CallbackOutcome::Done;
  } catch (const Failure& f) {
    failure = f;
  } catch (const std::bad_alloc&) {
    failure = Failure::Runtime(err::kOutOfMemory);
  } catch (...) {
    failure = Failure::Runtime(err::kInternalError);
  }
  result = Variant();
  return CallbackOutcome::Failed;
}

}  // namespace qvx
