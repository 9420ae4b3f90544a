// The channel back from the companion and the manager tool: registered
// window messages posted to the add-in's hidden listener window, the value
// in wParam (lParam is ignored).
#pragma once

#include <cstdint>
#include <string_view>

namespace qvx::companion {

inline constexpr std::string_view kClientMessageName = "ZNB_QVX_Client";
inline constexpr std::string_view kManagerMessageName = "ZNB_QVX_Manager";
inline constexpr std::string_view kClientWindowCaption =
    "Client Window - Quorvix Client for Outlook";
inline constexpr std::string_view kManagerWindowCaption =
    "Client Window - Quorvix Manager for Outlook";

// Values on the client channel.
inline constexpr int32_t kClientSettingsChanged = 0;  // reload settings, refresh, colours
inline constexpr int32_t kClientRunAutoSync = 1;      // start section 28
inline constexpr int32_t kClientItemsChanged = 2;     // refresh the toolbars
// Value on the manager channel.
inline constexpr int32_t kManagerSettingsChanged = 0;  // reload settings, refresh the ribbon

}  // namespace qvx::companion
