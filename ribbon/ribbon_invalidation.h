// Asking the host to call the ribbon's callbacks again.
#pragma once

#include <string_view>

namespace qvx {

class AddinState;

// Invalidates the whole ribbon; does nothing while no ribbon has loaded.
void subInvalidateRibbon(AddinState& s) noexcept;
// Invalidates one control; does nothing while no ribbon has loaded.
void subInvalidateControl(AddinState& s, std::string_view controlId) noexcept;

}  // namespace qvx
