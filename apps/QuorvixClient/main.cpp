// QuorvixClient stand-in: accepts the companion's command line, journals it
// and, when asked, posts the client-channel message back to the add-in.
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "apps/QuorvixClient/post_message.h"
#include "apps/QuorvixClient/standin_main.h"

namespace {

constexpr std::string_view kUsage =
    "QuorvixClient.exe - a TEST AND DEMO AID standing in for the companion program.\n"
    "It is NOT the real companion: it does no database work, shows no dialogs and\n"
    "writes nothing onto items. It checks its one argument against the add-in's\n"
    "contract and appends one line per call to a journal.\n"
    "\n"
    "Usage: QuorvixClient.exe ARGUMENT\n"
    "  ARGUMENT  a section number: 6, 14, 15, 17, 19, 21, 26, 27 or 28\n"
    "            or an action: 0|StoreID|entries (report), 2|StoreID|entries (withdraw),\n"
    "            entries joined by \",\", each EntryID or EntryID;start\n"
    "\n"
    "Environment:\n"
    "  QVX_COMPANION_JOURNAL  the journal file (default $XDG_DATA_HOME or\n"
    "                         $HOME/.local/share, then quorvix/companion-journal.txt)\n"
    "  QVX_CLIENT_POST_MESSAGE=N  after an accepted call, post the message\n"
    "                         \"ZNB_QVX_Client\" with value N to the add-in's window\n"
    "                         \"Client Window - Quorvix Client for Outlook\"\n"
    "                         (0 settings changed, 1 run the synchronisation, 2 items changed)\n"
    "\n"
    "Exit codes: 0 accepted, 2 rejected (one line on stderr), 3 journal not written,\n"
    "4 message not posted.\n";

// Plays the real companion's answer when the caller asks for it.
int AfterAccept(const qvx::standin::Verdict&, std::string_view) {
  const char* value = std::getenv(qvx::standin::kPostMessageVariable);
  if (value == nullptr) return qvx::standin::kExitAccepted;
  std::string error;
  if (qvx::standin::PostClientMessage(value, error)) return qvx::standin::kExitAccepted;
  std::fprintf(stderr, "QuorvixClient: %s\n", error.c_str());
  return qvx::standin::kExitNotPosted;
}

}  // namespace

int main(int argc, char** argv) {
  const qvx::standin::StandInProgram standIn{"QuorvixClient", kUsage,
                                             qvx::standin::CheckClientArgument, AfterAccept};
  return qvx::standin::RunStandIn(standIn, argc, argv);
}
