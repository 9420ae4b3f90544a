// Project colour codes as Outlook categories.
//
// With AddProjectColorCodes set on a host of version 12 or later, each
// project of the catalogue gets a category of its name in the session's
// master list, in the project's colour: an existing category is recoloured,
// a missing one added. Pending messages are let through before each project;
// a project the host refuses (an empty name, say) is passed over. Runs at
// start-up and each time the companion says the settings have changed.
#pragma once

namespace qvx {

class AddinState;

// Trap "Main.LoadProjectColorCodesToOutlook".
void LoadProjectColorCodesToOutlook(AddinState& s) noexcept;

}  // namespace qvx
