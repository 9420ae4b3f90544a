// State of the companion channel.
#pragma once

#include <cstdint>

namespace qvx {

struct CompanionState {
  // The last section passed to subLoadSection; kept, never read again.
  int32_t lngLastSection = 0;
};

}  // namespace qvx
