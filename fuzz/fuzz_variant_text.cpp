// The portable side of the VARIANT conversions: a text converted to every
// type either converts or fails with the program's error, never otherwise.
#include <cstddef>
#include <cstdint>
#include <string>

#include "core/failure.h"
#include "core/variant.h"
#include "fuzz/fuzz_state.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const qvx::Variant text(std::string(reinterpret_cast<const char*>(data), size));
  const auto tryConvert = [](auto&& convert) {
    try {
      convert();
    } catch (const qvx::Failure&) {
      // Type mismatch and overflow are the conversions' answers.
    }
  };
  tryConvert([&] { (void)text.ToLong(); });
  tryConvert([&] { (void)text.ToInteger(); });
  tryConvert([&] { (void)text.ToDouble(); });
  tryConvert([&] { (void)text.ToBoolean(); });
  tryConvert([&] { (void)text.ToDate(); });
  double number = 0;
  (void)qvx::ParseNumber(text.ToText(), number);
  return 0;
}
