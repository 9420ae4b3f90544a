// QuorvixOLAP stand-in: accepts the statistics command line and journals it.
#include <string_view>

#include "apps/QuorvixClient/standin_main.h"

namespace {

constexpr std::string_view kUsage =
    "QuorvixOLAP.exe - a TEST AND DEMO AID standing in for the statistics tool.\n"
    "It is NOT the real tool: it shows no statistics and reads no database. It\n"
    "checks its one argument against the add-in's contract and appends one line\n"
    "per call to a journal.\n"
    "\n"
    "Usage: QuorvixOLAP.exe CONNECTION|0|USER\n"
    "  every blank of the whole text is sent as _SPACE_\n"
    "\n"
    "Environment:\n"
    "  QVX_COMPANION_JOURNAL  the journal file (default $XDG_DATA_HOME or\n"
    "                         $HOME/.local/share, then quorvix/companion-journal.txt)\n"
    "\n"
    "Exit codes: 0 accepted, 2 rejected (one line on stderr), 3 journal not written.\n";

}  // namespace

int main(int argc, char** argv) {
  const qvx::standin::StandInProgram standIn{"QuorvixOLAP", kUsage,
                                             qvx::standin::CheckStatisticsArgument, nullptr};
  return qvx::standin::RunStandIn(standIn, argc, argv);
}
