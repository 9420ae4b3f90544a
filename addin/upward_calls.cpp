#include "addin/upward_calls.h"

#include <memory>

#include "addin/explorers_event_client.h"
#include "addin/inspectors_client.h"
#include "addin/main_module.h"
#include "reporting/color_codes.h"
#include "ribbon/ribbon_invalidation.h"
#include "state/addin_state.h"
#include "support/error_reporting.h"

namespace qvx {
namespace {

class AddinUpwardCalls final : public UpwardCalls {
 public:
  explicit AddinUpwardCalls(AddinState& s) : s_(s) {}

  void ReportError(const std::string& description, int32_t number, int line, std::string_view label,
                   bool allowDirectSend) noexcept override {
    qvx::ReportError(s_, description, number, line, label, allowDirectSend);
  }
  void subKillObjects() override { qvx::subKillObjects(s_); }
  void subShutDownOutlook() override { qvx::subShutDownOutlook(s_); }
  void UpdateAllDisplayedToolbars() noexcept override {
    if (s_.main.objExplorersClient) s_.main.objExplorersClient->UpdateAllDisplayedToolbars();
  }
  void subInvalidateRibbon() noexcept override { qvx::subInvalidateRibbon(s_); }
  void LoadProjectColorCodesToOutlook() noexcept override {
    qvx::LoadProjectColorCodesToOutlook(s_);
  }
  void ForgetInspectorToolbar(std::string_view entryId, bool customFields) noexcept override {
    if (s_.main.objInspectorsClient) {
      s_.main.objInspectorsClient->ForgetToolbar(entryId, customFields);
    }
  }

 private:
  AddinState& s_;
};

}  // namespace

void ConnectUpwardCalls(AddinState& s) {
  s.ConnectUpward(std::make_unique<AddinUpwardCalls>(s));
}

}  // namespace qvx
