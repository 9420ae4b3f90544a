#include "state/addin_state.h"

namespace qvx {

AddinState::~AddinState() = default;

}  // namespace qvx
