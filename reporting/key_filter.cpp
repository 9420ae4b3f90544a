#include "reporting/key_filter.h"

namespace qvx {

void KeepDigitsOnly(int16_t& keyAscii) noexcept {
  const bool digit = keyAscii >= '0' && keyAscii <= '9';
  if (!digit && keyAscii != kKeyBackspace) keyAscii = 0;
}

}  // namespace qvx
