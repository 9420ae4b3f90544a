// The common body of the two companion stand-ins: check the one argument,
// journal the call, answer with an exit code.
//
// Exit codes: 0 accepted; 2 rejected (wrong number of arguments or an
// argument outside the contract), with one line on stderr; 3 accepted but the
// journal could not be written. "--help" prints the usage and writes nothing.
#pragma once

#include <functional>
#include <string_view>

#include "apps/QuorvixClient/standin_contract.h"

namespace qvx::standin {

inline constexpr int kExitAccepted = 0;
inline constexpr int kExitRejected = 2;
inline constexpr int kExitJournalFailed = 3;

struct StandInProgram {
  std::string_view program;  // "QuorvixClient"
  std::string_view usage;    // printed by --help
  std::function<Verdict(std::string_view)> check;
  // Runs after an accepted and journalled call; its result is the exit code.
  std::function<int(const Verdict&, std::string_view argument)> afterAccept;
};

int RunStandIn(const StandInProgram& standIn, int argc, char** argv);

}  // namespace qvx::standin
