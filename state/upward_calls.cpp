#include "state/upward_calls.h"

namespace qvx {

void UpwardCalls::ReportError(const std::string&, int32_t, int, std::string_view, bool) noexcept {}
void UpwardCalls::subKillObjects() {}
void UpwardCalls::subShutDownOutlook() {}
void UpwardCalls::UpdateAllDisplayedToolbars() noexcept {}
void UpwardCalls::subInvalidateRibbon() noexcept {}
void UpwardCalls::subInvalidateCustomFieldControls() noexcept {}
void UpwardCalls::LoadProjectColorCodesToOutlook() noexcept {}
void UpwardCalls::ForgetInspectorToolbar(std::string_view, bool) noexcept {}

}  // namespace qvx
