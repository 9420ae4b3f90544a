// The key-press filter of the numeric custom fields: digits and backspace
// pass, every other key is swallowed (set to 0), the minus sign, the decimal
// point and the thousands separator included.
#pragma once

#include <cstdint>

namespace qvx {

inline constexpr int16_t kKeyBackspace = 8;

// KeyAscii by reference, as the form's KeyPress event hands it over.
void KeepDigitsOnly(int16_t& keyAscii) noexcept;

}  // namespace qvx
