// Project colour codes as Outlook categories.
#pragma once

namespace qvx {

class AddinState;

// Loads the catalogue's project colours into the host's categories. The
// colour rules arrive with the tagging actions; until then this does nothing.
void LoadProjectColorCodesToOutlook(AddinState& s) noexcept;

}  // namespace qvx
