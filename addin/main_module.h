// The main module: start-up and tear-down of the process-wide objects.
#pragma once

#include "state/addin_state.h"

namespace qvx {

void subFirstPoint(AddinState& s);
void StartingPoint(AddinState& s, bool& blnRestart);
// Releases everything in its fixed order; safe to call any number of times.
void subKillObjects(AddinState& s);
// Tears down when the host has no explorer left.
void subShutDownOutlook(AddinState& s);
// The add-in's own version, "major.minor.revision".
std::string GetAppVersion();

}  // namespace qvx
