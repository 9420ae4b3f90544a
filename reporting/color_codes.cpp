#include "reporting/color_codes.h"

namespace qvx {

void LoadProjectColorCodesToOutlook(AddinState&) noexcept {}

}  // namespace qvx
