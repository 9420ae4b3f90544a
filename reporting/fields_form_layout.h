// The controls of frmFields as its designer laid them out, in tab order.
#pragma once

#include <vector>

#include "platform/form_model.h"

namespace qvx {

inline constexpr int kFieldsFormWidth = 6690;   // twips
inline constexpr int kFieldsFormHeight = 6780;  // twips, title bar included

std::vector<platform::FormControl> FieldsFormLayout();

}  // namespace qvx
