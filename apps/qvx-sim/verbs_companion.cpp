// expect launch / no-launch / journal / no-journal, post client|manager, companion answers,
// pump, wait programs, wait companion, expect window / no-window
#include <algorithm>

#include <stdlib.h>

#include "apps/QuorvixClient/post_message.h"
#include "apps/qvx-sim/verbs.h"
#include "apps/qvx-sim/world.h"
#include "companion/message_names.h"
#include "core/text.h"

namespace qvx::scenario {
namespace {

// The program's name as a script writes it: the file name without ".exe";
// a link stays whole.
std::string ProgramOf(const std::string& path) {
  const std::string upper = UCase(path.substr(0, 4));
  if (upper == "HTTP" || upper == "MAIL") return path;
  const size_t slash = path.find_last_of("\\/");
  std::string name = slash == std::string::npos ? path : path.substr(slash + 1);
  if (name.size() > 4 && UCase(name.substr(name.size() - 4)) == ".EXE") {
    name.resize(name.size() - 4);
  }
  return name;
}

void Post(World& w, std::string_view caption, std::string_view message, int value) {
  const uint32_t id = platform::RegisteredMessageId(message);
  if (!w.windows().Post(caption, id, value, 0)) {
    throw ExpectationFailed("a window " + Shown(caption), "(no such window)");
  }
}

}  // namespace

void RegisterCompanionVerbs(VerbTable& table) {
  table.Add("expect launch", "expect launch PROGRAM [ARGUMENT]",
            "the next program started (name without .exe, or the whole link) and its one argument",
            [](World& w, const Args& a) {
              a.Expect(1, 2);
              const auto& launches = w.system().Launches();
              if (w.launchesSeen >= launches.size()) {
                throw ExpectationFailed(Shown(a.At(0)), "(no launch)");
              }
              const auto& launch = launches[w.launchesSeen++];
              ExpectEqual(a.At(0), ProgramOf(launch.path));
              if (a.size() > 1) ExpectEqual(a.At(1), launch.argument);
            });
  table.Add("expect no-launch", "expect no-launch", "no program started beyond those expected",
            [](World& w, const Args& a) {
              a.Expect(0);
              const auto& launches = w.system().Launches();
              if (w.launchesSeen < launches.size()) {
                const auto& launch = launches[w.launchesSeen];
                throw ExpectationFailed("(no launch)",
                                        ProgramOf(launch.path) + " " + Shown(launch.argument));
              }
            });
  table.Add(
      "expect journal", "expect journal PROGRAM KIND ARGUMENT",
      "a journal line of the companion stand-ins not yet expected, in any order (waits for them)",
      [](World& w, const Args& a) {
        a.Expect(3);
        w.WaitForPrograms();
        const auto lines = w.JournalLines();
        const std::string expected = a.At(0) + "\t" + a.At(1) + "\t" + a.At(2);
        w.journalTaken.resize(lines.size(), false);
        std::string others;
        for (size_t i = 0; i < lines.size(); ++i) {
          if (w.journalTaken[i]) continue;
          if (lines[i] == expected) {
            w.journalTaken[i] = true;
            return;
          }
          others += (others.empty() ? "" : ", ") + Shown(lines[i]);
        }
        throw ExpectationFailed(Shown(expected), others.empty() ? "(no journal line)" : others);
      });
  table.Add("expect no-journal", "expect no-journal",
            "no journal line beyond those expected (waits for the programs to end)",
            [](World& w, const Args& a) {
              a.Expect(0);
              w.WaitForPrograms();
              const auto lines = w.JournalLines();
              w.journalTaken.resize(lines.size(), false);
              for (size_t i = 0; i < lines.size(); ++i) {
                if (!w.journalTaken[i])
                  throw ExpectationFailed("(no journal line)", Shown(lines[i]));
              }
            });
  table.Add("post client", "post client VALUE",
            "the companion posts \"ZNB_QVX_Client\" with VALUE to the listener window",
            [](World& w, const Args& a) {
              a.Expect(1);
              Post(w, companion::kClientWindowCaption, companion::kClientMessageName, a.Int(0));
            });
  table.Add("post manager", "post manager VALUE",
            "the manager tool posts \"ZNB_QVX_Manager\" with VALUE to the listener window",
            [](World& w, const Args& a) {
              a.Expect(1);
              Post(w, companion::kClientWindowCaption, companion::kManagerMessageName, a.Int(0));
            });
  table.Add("companion answers", "companion answers VALUE|nothing",
            "after each accepted call the companion stand-in posts \"ZNB_QVX_Client\" with VALUE "
            "back to the listener window (until \"nothing\")",
            [](World&, const Args& a) {
              a.Expect(1);
              if (a.Is(0, "nothing")) {
                unsetenv(standin::kPostMessageVariable);
              } else {
                setenv(standin::kPostMessageVariable, std::to_string(a.Int(0)).c_str(), 1);
              }
            });
  table.Add("pump", "pump", "lets pending host events and window messages through",
            [](World& w, const Args& a) {
              a.Expect(0);
              w.Pump();
            });
  table.Add("wait programs", "wait programs", "waits until the started programs have ended",
            [](World& w, const Args& a) {
              a.Expect(0);
              w.WaitForPrograms();
            });
  table.Add("wait companion", "wait companion",
            "waits until the started programs have ended and everything they posted has been "
            "delivered, and so on for the programs that this starts",
            [](World& w, const Args& a) {
              a.Expect(0);
              if (!w.SettleCompanion()) {
                throw ExpectationFailed("the companion stand-ins at rest",
                                        "still started and posting after 100 rounds");
              }
            });
  table.Add("expect window", "expect window CAPTION", "a listener window with this caption exists",
            [](World&, const Args& a) {
              a.Expect(1);
              if (!platform::SocketMessageWindows::WindowExists(a.At(0))) {
                throw ExpectationFailed("a window " + Shown(a.At(0)), "(no such window)");
              }
            });
  table.Add("expect no-window", "expect no-window CAPTION", "no window has this caption",
            [](World&, const Args& a) {
              a.Expect(1);
              if (platform::SocketMessageWindows::WindowExists(a.At(0))) {
                throw ExpectationFailed("(no window)", "a window " + Shown(a.At(0)));
              }
            });
}

}  // namespace qvx::scenario
