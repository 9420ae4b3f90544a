// The POSIX registry file's text: Parse is total, and a valid file written
// back by Serialize parses to the same contents.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "fuzz/fuzz_state.h"
#include "platform/posix/file_registry_format.h"

namespace regfile = qvx::platform::regfile;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  regfile::Contents contents;
  if (regfile::Parse(text, contents) != regfile::Verdict::Valid) return 0;
  const std::string written = regfile::Serialize(contents);
  regfile::Contents reread;
  if (regfile::Parse(written, reread) != regfile::Verdict::Valid) {
    qvx::fuzz::FuzzFinding("serialized file not valid", text, written);
  }
  const std::string again = regfile::Serialize(reread);
  if (again != written) qvx::fuzz::FuzzFinding("registry file round trip", written, again);
  return 0;
}
