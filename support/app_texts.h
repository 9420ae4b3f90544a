// Texts the add-in shows in many places.
#pragma once

#include <string_view>

namespace qvx {

// The title of the add-in's message boxes, and its name in error reports.
inline constexpr std::string_view kMessageTitle = "Quorvix Client Addin";

}  // namespace qvx
