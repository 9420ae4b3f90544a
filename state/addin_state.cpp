#include "state/addin_state.h"

namespace qvx {

AddinState::AddinState(platform::Platform platform)
    : upward_(std::make_unique<UpwardCalls>()), platform(platform) {}

AddinState::~AddinState() = default;

void AddinState::ReportError(const std::string& description, int32_t number, int line,
                             std::string_view label, bool allowDirectSend) noexcept {
  upward_->ReportError(description, number, line, label, allowDirectSend);
}

}  // namespace qvx
