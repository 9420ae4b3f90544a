// The ribbon callbacks the host calls by the names bound in the markup.
//
// One table holds them all: a callback is a name (matched without regard to
// case, as the host resolves it), the number of arguments it takes, and its
// body. Arguments come in the order of the callback's signature, the control
// (or the ribbon, or an image id) first.
//
//   Variant result;
//   std::vector<Variant> args{Variant(ribbonUi)};
//   switch (InvokeRibbonCallback(s, "onload", args, result, failure)) { ... }
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "core/failure.h"
#include "core/variant.h"

namespace qvx {

class AddinState;

struct RibbonCallback {
  std::string_view name;
  std::size_t argumentCount;
  // A failure it does not trap itself goes back to the host.
  void (*body)(AddinState& s, std::vector<Variant>& args, Variant& result);
};

// The callback of that name, or nullptr.
const RibbonCallback* FindRibbonCallback(std::string_view name) noexcept;

enum class CallbackOutcome { Done, UnknownName, WrongArgumentCount, Failed };

// Runs a callback by name. A failure the callback leaves untrapped ends in
// `failure` and the outcome Failed: the host decides what a failing
// callback means for its control. Once the add-in is torn down a callback
// runs nothing: a getter answers False, "" or 0, anything else nothing.
CallbackOutcome InvokeRibbonCallback(AddinState& s, std::string_view name,
                                     std::vector<Variant>& args, Variant& result,
                                     std::optional<Failure>& failure) noexcept;

// OnLoad: the host hands over its ribbon, kept for invalidation; the last
// ribbon to load receives every later invalidation.
void OnLoad(AddinState& s, const Object& ribbon);

}  // namespace qvx
