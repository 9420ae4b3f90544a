// What the fuzz targets share: an add-in state for the procedures that
// report through one, and the end of a run that broke a rule.
//
//   FuzzState& state = FuzzState::Instance();
//   catalogue.FromString(state.addin.s, text);
//   if (again != once) FuzzFinding("round trip", once, again);
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "core/text.h"
#include "sim/test_addin.h"

namespace qvx::fuzz {

// One test add-in for the fuzzer's whole run: making one costs a private
// folder, and only the first failure of a process shows a report, so the
// state does not grow from run to run.
struct FuzzState {
  sim::TestAddin addin;

  static FuzzState& Instance() {
    static FuzzState state;
    return state;
  }
};

// Whether a text can come out of the registry as a stored string: valid
// UTF-8 (it was UTF-16) and no NUL (a string value ends at one).
inline bool IsStoredText(std::string_view text) {
  return text.find('\0') == std::string_view::npos && SanitizeUtf8(text) == text;
}

// Prints what broke and aborts, so that libFuzzer keeps the input.
[[noreturn]] inline void FuzzFinding(std::string_view rule, std::string_view first,
                                     std::string_view second) {
  std::fprintf(stderr, "fuzz finding: %.*s\n  first:  %.*s\n  second: %.*s\n",
               static_cast<int>(rule.size()), rule.data(), static_cast<int>(first.size()),
               first.data(), static_cast<int>(second.size()), second.data());
  std::abort();
}

}  // namespace qvx::fuzz
