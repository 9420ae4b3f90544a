// getImages: the add-in's own pictures for the inspector's report and
// withdraw buttons, which only a host of major version 12 asks for (through
// the document's loadImage).
//
//   Object picture = getImages(s, "Report");  // an IPictureDisp on Windows
#pragma once

#include <string_view>

#include "core/object.h"

namespace qvx {

class AddinState;

// "Report" and "Withdraw": the pictures of the listener form, which is
// loaded if it is not yet. Any other id, and a failure (trap "getImages"):
// Nothing.
Object getImages(AddinState& s, std::string_view imageId) noexcept;

}  // namespace qvx
