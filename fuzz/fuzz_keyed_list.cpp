// The keyed lists' text (custom field lists): any text the registry can hold
// reads without a crash with either delimiter, and what ToString writes reads
// back to the same list. The join is trimmed at both ends, so entries with
// outer blanks are left out of the round trip.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "core/text.h"
#include "fuzz/fuzz_state.h"
#include "settings/single_list.h"

namespace {

bool HasOuterBlanks(std::string_view text, std::string_view delimiter) {
  for (const std::string& part : qvx::Split(text, delimiter)) {
    if (!part.empty() && (part.front() == ' ' || part.back() == ' ')) return true;
  }
  return false;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  qvx::AddinState& s = qvx::fuzz::FuzzState::Instance().addin.s;
  std::string_view input(reinterpret_cast<const char*>(data), size);
  // The first byte chooses the delimiter: the stored lists' CR LF, or a comma.
  const std::string_view delimiter = !input.empty() && (input[0] & 1) ? "," : "\r\n";
  if (!input.empty()) input.remove_prefix(1);
  if (!qvx::fuzz::IsStoredText(input)) return 0;
  qvx::cSingleList first;
  first.FromString(s, input, delimiter);
  const std::string written = first.ToString(s, delimiter, false);
  if (HasOuterBlanks(input, delimiter)) return 0;
  qvx::cSingleList second;
  second.FromString(s, written, delimiter);
  const std::string again = second.ToString(s, delimiter, false);
  if (again != written) qvx::fuzz::FuzzFinding("keyed list round trip", written, again);
  return 0;
}
