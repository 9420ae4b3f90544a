#include "apps/QuorvixClient/standin_main.h"

#include <cstdio>
#include <string>

#include "apps/QuorvixClient/journal.h"

namespace qvx::standin {
namespace {

void Fail(std::string_view program, const std::string& error) {
  std::fprintf(stderr, "%.*s: %s\n", static_cast<int>(program.size()), program.data(),
               error.c_str());
}

}  // namespace

int RunStandIn(const StandInProgram& standIn, int argc, char** argv) {
  if (argc == 2 && std::string_view(argv[1]) == "--help") {
    std::fwrite(standIn.usage.data(), 1, standIn.usage.size(), stdout);
    return kExitAccepted;
  }
  std::string argument;
  Verdict verdict;
  if (argc == 2) {
    argument = argv[1];
    verdict = standIn.check(argument);
  } else {
    for (int i = 1; i < argc; ++i) argument += (i > 1 ? " " : "") + std::string(argv[i]);
    verdict.error = "expected exactly one argument, got " + std::to_string(argc - 1);
  }

  // Every call is journalled, a rejected one too, so that a test sees what was sent.
  std::string journalError;
  const bool journalled = AppendJournalLine(
      JournalPath(),
      JournalLine(standIn.program, verdict.accepted() ? verdict.kind : "rejected", argument),
      journalError);
  if (!verdict.accepted()) {
    Fail(standIn.program, verdict.error);
    return kExitRejected;
  }
  if (!journalled) {
    Fail(standIn.program, journalError);
    return kExitJournalFailed;
  }
  return standIn.afterAccept ? standIn.afterAccept(verdict, argument) : kExitAccepted;
}

}  // namespace qvx::standin
