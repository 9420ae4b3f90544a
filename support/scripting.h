// The scripting runtime's objects, made on demand: a text-compare dictionary
// and the shell object. Each creation that fails is repaired once per process
// by registering its library again, and then gives Nothing.
#pragma once

#include "core/object.h"

namespace qvx {

class AddinState;

namespace Scripting {

// A new "Scripting.Dictionary" with CompareMode 1 (text), or Nothing.
Object Initialize(AddinState& s) noexcept;
// A "Wscript.Shell", or Nothing; failures are ignored and cleared.
Object GetWS(AddinState& s) noexcept;

}  // namespace Scripting
}  // namespace qvx
