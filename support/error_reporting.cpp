#include "addin/state.h"

namespace qvx {

// Placeholder until the central handler lands.
void AddinState::ReportError(const std::string&, int32_t, int, std::string_view, bool) noexcept {}

}  // namespace qvx
