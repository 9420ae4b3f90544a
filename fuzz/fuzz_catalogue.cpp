// The project and activity catalogue's text: any text the registry can hold
// reads without a crash, and a text that ToString wrote reads back and is
// written again character for character. (The first writing may lose what
// the tree cannot keep, such as a second activity whose name trims to
// nothing; from then on the text is fixed.)
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "fuzz/fuzz_state.h"
#include "settings/tasks_per_project_list.h"

namespace {

std::string Rewritten(qvx::AddinState& s, std::string_view text) {
  qvx::cTasksPerProjectList catalogue;
  catalogue.FromString(s, text);
  return catalogue.ToString(s);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  qvx::AddinState& s = qvx::fuzz::FuzzState::Instance().addin.s;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  if (!qvx::fuzz::IsStoredText(text)) return 0;
  const std::string written = Rewritten(s, Rewritten(s, text));
  const std::string again = Rewritten(s, written);
  if (again != written) qvx::fuzz::FuzzFinding("catalogue round trip", written, again);
  return 0;
}
