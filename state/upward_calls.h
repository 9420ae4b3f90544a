// UpwardCalls: what the layers below ask of the layers above them.
//
// The state record and the services under the subsystems never include the
// add-in, the ribbon or the command bars. The few things they must still
// cause up there go through this one interface, which the add-in fills in
// when it makes its state (addin/upward_calls.h) and which the state holds.
// Until then every call does nothing, so a state record stands alone in tests
// of a single layer.
//
//   s.upward().subKillObjects();            // support/: no host left
//   s.upward().UpdateAllDisplayedToolbars();  // companion/: the items changed
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace qvx {

class UpwardCalls {
 public:
  virtual ~UpwardCalls() = default;

  // The central failure handler (support/error_reporting.h).
  virtual void ReportError(const std::string& description, int32_t number, int line,
                           std::string_view label, bool allowDirectSend) noexcept;
  // The tear-down of everything, in its fixed order (addin/main_module.h).
  virtual void subKillObjects();
  // The tear-down, if the host has no explorer left (a window's Close).
  virtual void subShutDownOutlook();
  // Refreshes the bars of every explorer and the active inspector, if the
  // explorers' sink exists.
  virtual void UpdateAllDisplayedToolbars() noexcept;
  // Makes the host call every ribbon callback again.
  virtual void subInvalidateRibbon() noexcept;
  // The same, for the custom field drop-downs only.
  virtual void subInvalidateCustomFieldControls() noexcept;
  // Copies the projects' colours into the host's category list.
  virtual void LoadProjectColorCodesToOutlook() noexcept;
  // The inspectors' client forgets the project bar, or the custom fields
  // bar, that it keeps under this EntryID.
  virtual void ForgetInspectorToolbar(std::string_view entryId, bool customFields) noexcept;
};

}  // namespace qvx
