#include "addin/state.h"

namespace qvx {

AddinState::~AddinState() = default;

}  // namespace qvx
