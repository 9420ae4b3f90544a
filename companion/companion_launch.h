// Starting the companion programs. Each call starts the program with one
// argument and returns at once: nothing waits for it and nothing reads a
// result. A missing program is told to the user by the launcher
// (FileModule::RunApp); the add-in carries on unchanged either way.
//
//   subLoadSection(s, companion::kSectionMyProjectsTasks);  // QuorvixClient "6"
#pragma once

#include <cstdint>

#include "state/addin_state.h"

namespace qvx {

// Starts QuorvixClient on a section number (see companion/section_codes.h)
// and keeps the number in s.companion.lngLastSection. Trap "Main.subLoadSection".
void subLoadSection(AddinState& s, int32_t lngSection) noexcept;

// Starts QuorvixOLAP with the connection and the user name. Without a
// connection text it only shows "Please configure the database connectivity
// first before running statistical tool!". With DBChoice 0 the setting is a
// folder that holds the file database. Trap "Main.subLoadOLAPStatistics".
void subLoadOLAPStatistics(AddinState& s) noexcept;

// Opens the tutorial page "/Quorvix/TutorialClips.asp" of the product's web
// site. Trap "Main.GotoVideoTutorial".
void GotoVideoTutorial(AddinState& s) noexcept;

}  // namespace qvx
