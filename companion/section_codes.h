// The companion's contract: the program names, the section numbers and the
// first fields of the action commands.
//
// A section is a bare decimal number: what the companion is to do by itself.
// These are all the numbers ever sent; a number not here is never sent.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace qvx::companion {

// Base names of the executables, beside the add-in (the launcher adds ".exe").
inline constexpr std::string_view kClientProgram = "QuorvixClient";
inline constexpr std::string_view kStatisticsProgram = "QuorvixOLAP";

// The dialog "My <Project> && <Activity> Lists": the user's projects and activities.
inline constexpr int32_t kSectionMyProjectsTasks = 6;
// The dialog "My Project Data Source".
inline constexpr int32_t kSectionProjectDataSource = 14;
// The dialog "My Local Settings".
inline constexpr int32_t kSectionMyLocalSettings = 15;
// A synchronisation of settings and project lists, asked for by the user.
inline constexpr int32_t kSectionSyncProjectSettings = 17;
// An unattended check for an upgrade at start-up.
inline constexpr int32_t kSectionAutoCheckForUpgrade = 19;
// The dialog "My TimeSheet Summary Reports".
inline constexpr int32_t kSectionSummaryReports = 21;
// A check for an update or upgrade, asked for by the user.
inline constexpr int32_t kSectionCheckUpdates = 26;
// The unattended report of all items whose due date has lapsed.
inline constexpr int32_t kSectionReportLapsedItems = 27;
// An unattended synchronisation of settings from the database.
inline constexpr int32_t kSectionAutoSync = 28;

inline constexpr std::array<int32_t, 9> kAllSections{
    kSectionMyProjectsTasks,     kSectionProjectDataSource,   kSectionMyLocalSettings,
    kSectionSyncProjectSettings, kSectionAutoCheckForUpgrade, kSectionSummaryReports,
    kSectionCheckUpdates,        kSectionReportLapsedItems,   kSectionAutoSync};

constexpr bool IsKnownSection(int64_t section) {
  for (int32_t known : kAllSections) {
    if (known == section) return true;
  }
  return false;
}

// First field of an action command.
inline constexpr int32_t kActionReport = 0;
inline constexpr int32_t kActionWithdraw = 2;

}  // namespace qvx::companion
