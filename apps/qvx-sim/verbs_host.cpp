// host version / no-explorer / mailbox / fail / open-explorer / close-explorer /
// restart / count-calls, expect explorers / explorer-folder / host-calls,
// show host-calls
#include "apps/qvx-sim/verbs.h"
#include "apps/qvx-sim/world.h"
#include "sim/explorer.h"
#include "sim/folder.h"

namespace qvx::scenario {
namespace {

const std::vector<std::string> kFolders = {"calendar", "tasks", "inbox"};

std::shared_ptr<sim::SimFolder> FolderOf(World& w, const Args& a, size_t i) {
  switch (a.Choice(i, kFolders)) {
    case 0:
      return w.host().Calendar();
    case 1:
      return w.host().Tasks();
    default:
      return w.host().Inbox();
  }
}

// Sets a failure on the member at the path in the first argument; a path that
// leads to no object is the script's mistake.
template <typename SetFailure>
void AtMemberPath(const Args& a, SetFailure set) {
  try {
    set();
  } catch (const Failure& f) {
    throw UsageError("no such object: " + a.At(0) + " (" + f.description() + ")");
  }
}

}  // namespace

void RegisterHostVerbs(VerbTable& table) {
  table.Add("host version", "host version TEXT", "the host's Version, \"16.0.0.0\" by default",
            [](World& w, const Args& a) {
              a.Expect(1);
              w.host().SetVersion(a.At(0));
            });
  table.Add("host no-explorer", "host no-explorer",
            "the host starts without a window, as automation starts it",
            [](World& w, const Args& a) {
              a.Expect(0);
              w.host().StartsWithoutExplorer();
            });
  table.Add("host mailbox", "host mailbox TEXT", "the name of the mailbox's root folder",
            [](World& w, const Args& a) {
              a.Expect(1);
              w.host().SetMailboxName(a.At(0));
            });
  table.Add("host fail", "host fail PATH NUMBER DESCRIPTION [TIMES]",
            "makes a member fail, e.g. host fail ActiveExplorer.CurrentFolder -2147467259 \"x\"",
            [](World& w, const Args& a) {
              a.Expect(3, 4);
              const int times = a.size() == 4 ? a.Int(3) : sim::kAlways;
              AtMemberPath(a, [&] { w.host().FailAt(a.At(0), a.Int(1), a.At(2), times); });
            });
  table.Add("host fail-once", "host fail-once PATH NUMBER DESCRIPTION",
            "the member's next call fails, and that one only: what host fail set on it before "
            "goes",
            [](World& w, const Args& a) {
              a.Expect(3);
              AtMemberPath(a, [&] { w.host().FailNextCallOnly(a.At(0), a.Int(1), a.At(2)); });
            });
  table.Add("host restart", "host restart",
            "the host exits and starts again: the add-in is shut down and loaded anew, "
            "temporary command bars are gone",
            [](World& w, const Args& a) {
              a.Expect(0);
              w.RestartHost();
            });
  table.Add("host open-explorer", "host open-explorer calendar|tasks|inbox",
            "the user opens an explorer on a default folder", [](World& w, const Args& a) {
              a.Expect(1);
              w.host().OpenExplorer(FolderOf(w, a, 0));
            });
  table.Add("host close-explorer", "host close-explorer", "the user closes the active explorer",
            [](World& w, const Args& a) {
              a.Expect(0);
              auto explorer = w.host().ActiveExplorer();
              if (!explorer) throw UsageError("no explorer is open");
              w.host().Close(*explorer);
            });
  table.Add("expect explorers", "expect explorers COUNT", "how many explorers are open",
            [](World& w, const Args& a) {
              a.Expect(1);
              ExpectEqual(std::to_string(a.Int(0)), std::to_string(w.host().Explorers().size()));
            });
  table.Add("host count-calls", "host count-calls",
            "starts counting the add-in's calls on the host's objects afresh",
            [](World& w, const Args& a) {
              a.Expect(0);
              w.host().context().hostCalls = 0;
            });
  table.Add("expect host-calls", "expect host-calls MAX",
            "the add-in called members of the host's objects (or enumerated them) at most MAX "
            "times since the last host count-calls",
            [](World& w, const Args& a) {
              a.Expect(1);
              const uint64_t calls = w.host().context().hostCalls;
              if (calls > static_cast<uint64_t>(a.Int(0))) {
                throw ExpectationFailed("at most " + a.At(0), std::to_string(calls));
              }
            });
  table.Add("show host-calls", "show host-calls",
            "prints the add-in's calls on the host since the last host count-calls",
            [](World& w, const Args& a) {
              a.Expect(0);
              if (w.out) *w.out << "host calls: " << w.host().context().hostCalls << "\n";
            });
  table.Add("expect explorer-folder", "expect explorer-folder NAME",
            "the folder shown by the active explorer", [](World& w, const Args& a) {
              a.Expect(1);
              auto explorer = w.host().ActiveExplorer();
              if (!explorer) throw ExpectationFailed(Shown(a.At(0)), "(no explorer)");
              ExpectEqual(a.At(0), explorer->folder() ? explorer->folder()->name() : "");
            });
}

}  // namespace qvx::scenario
