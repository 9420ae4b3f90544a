// The scenario language: any text parses or gives an error, never a crash,
// and every statement's words split again the same from its text.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "apps/qvx-sim/script.h"
#include "fuzz/fuzz_state.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  qvx::scenario::Script script;
  if (qvx::scenario::ParseScript(text, "fuzz", script)) return 0;
  for (const qvx::scenario::Statement& statement : script.statements) {
    std::vector<std::string> words;
    std::string error;
    if (!qvx::scenario::SplitWords(statement.text, words, error) || words != statement.words) {
      qvx::fuzz::FuzzFinding("statement splits differently", statement.text, error);
    }
  }
  return 0;
}
