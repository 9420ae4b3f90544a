#include "apps/qvx-sim/soak.h"

#include <algorithm>
#include <deque>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "apps/qvx-sim/soak_actions.h"
#include "apps/qvx-sim/soak_watch.h"
#include "apps/qvx-sim/world.h"
#include "state/addin_state.h"

namespace qvx::scenario {
namespace {

// Where a bar was left is the one thing the add-in writes to the settings.
bool IsBarPosition(const std::string& name) {
  for (const char* bar : {"MainTB", "CustomTB"}) {
    for (const char* field : {"Top", "Left", "Position", "RowIndex"}) {
      if (name == std::string(bar) + field) return true;
    }
  }
  return false;
}

// The settings key's values but the bars' positions.
std::vector<std::string> SettingsOf(World& world) {
  std::vector<std::string> lines;
  for (const auto& named : world.registry().ListValues(kSettingsKey)) {
    if (IsBarPosition(named.name)) continue;
    lines.push_back(named.name + "=" + std::to_string(named.value.type) + ":" + named.value.data);
  }
  return lines;
}

// Runs one statement. "" when it ran, or could not be done at this moment
// (`skipped`); otherwise what went wrong.
std::string Run(World& world, const VerbTable& verbs, const std::string& line, bool required,
                bool& skipped) {
  skipped = false;
  Script script;
  if (ParseScript(line, "soak", script) || script.statements.empty()) {
    return "the soak wrote a malformed statement";
  }
  const std::vector<std::string>& words = script.statements.front().words;
  size_t taken = 0;
  const Verb* verb = verbs.Find(words, taken);
  if (!verb) return "no such verb";
  try {
    verb->handler(
        world, Args(std::vector<std::string>(words.begin() + static_cast<long>(taken), words.end()),
                    verb->usage));
  } catch (const ExpectationFailed&) {
    if (required) return "the set-up failed";
    skipped = true;
  } catch (const UsageError& e) {
    if (required) return std::string("the set-up failed: ") + e.what();
    skipped = true;
  } catch (const std::exception& e) {
    return std::string("an exception came out of the add-in: ") + e.what();
  } catch (...) {
    return "an exception came out of the add-in";
  }
  return "";
}

// What broke a promise the add-in keeps whatever the step: "" when none.
std::string SettingsWritten(World& world, const std::string& line,
                            std::vector<std::string>& settings) {
  const bool ownWrite = line.rfind("registry set", 0) == 0 || line.rfind("catalogue set", 0) == 0;
  if (ownWrite) {
    settings = SettingsOf(world);
    return "";
  }
  const std::vector<std::string> now = SettingsOf(world);
  if (now == settings) return "";
  std::string change;
  for (const std::string& value : now) {
    if (std::find(settings.begin(), settings.end(), value) == settings.end()) change += " " + value;
  }
  return "the add-in wrote the settings key:" + change;
}

constexpr char kHostVersion[] = "host version ";
constexpr size_t kRecentShown = 60;

bool TornDown(World& world) {
  return world.HasAddin() && world.addin().state().main.phase == AddinPhase::TornDown;
}

}  // namespace

int RunSoak(const SoakOptions& options, const VerbTable& verbs, std::ostream& out,
            std::ostream& err) {
  std::mt19937 random(options.seed);
  World world;
  std::ostringstream quiet;
  world.out = &quiet;
  SoakWatch watch(world);
  std::deque<std::string> required;
  std::string host;  // the host's major version, as the set-up chose it
  for (std::string& line : SoakSetUp(random)) {
    if (line.rfind(kHostVersion, 0) == 0) host = line.substr(sizeof kHostVersion - 1, 2);
    required.push_back(std::move(line));
  }
  SoakActions actions(random);
  // The last statements run, printed when a promise breaks.
  std::deque<std::string> recent;
  const auto remember = [&recent](std::string line) {
    if (recent.size() == kRecentShown) recent.pop_front();
    recent.push_back(std::move(line));
  };
  // Interruptions draw from their own stream, so that a seed's actions are the
  // same whatever the add-in's loops do.
  std::mt19937 interruptRandom(options.seed ^ 0x9E3779B9u);
  SoakActions interruptions(interruptRandom);
  bool interrupting = false;  // only once the set-up is done
  long interrupted = 0;
  std::string interruptFailure;
  world.whileAddinPumps = [&] {
    if (!interrupting) return;
    const std::string line = interruptions.Interruption();
    if (line.empty()) return;
    ++interrupted;
    remember("  (while the add-in pumped) " + line);
    bool notPossible = false;
    const std::string why = Run(world, verbs, line, false, notPossible);
    if (!why.empty() && interruptFailure.empty()) interruptFailure = line + ": " + why;
  };
  // Unhooked before what the hook uses goes, whichever way the run ends.
  struct Unhook {
    World& world;
    ~Unhook() { world.whileAddinPumps = nullptr; }
  } unhook{world};
  long skipped = 0;
  long done = 0;
  long lives = 1;
  size_t reports = 0;      // in this add-in life
  int afterTearDown = -1;  // once torn down: the actions left before the host restarts
  std::vector<std::string> settings;
  for (long step = 0; !required.empty() || done < options.operations; ++step) {
    const bool setting = !required.empty();
    std::string line;
    if (setting) {
      line = std::move(required.front());
      required.pop_front();
    } else {
      ++done;
      if (afterTearDown == 0) {
        line = "host restart";
      } else if (afterTearDown > 0) {
        line = actions.Next(options.faultPercent);
        --afterTearDown;
      } else {
        line = actions.TearDownNow() ? "addin shutdown" : actions.Next(options.faultPercent);
      }
    }
    const auto broke = [&](const std::string& what) {
      err << "soak " << options.seed << ", step " << step << ": " << line << "\n  " << what
          << "\nthe statements before it, oldest first:\n";
      for (const std::string& before : recent) err << before << "\n";
      return 1;
    };
    remember(line);
    watch.BeforeStep();
    interrupting = !setting;
    bool notPossible = false;
    if (line == kCloseExplorer && world.host().Explorers().size() < 2) {
      notPossible = true;
    } else if (const std::string why = Run(world, verbs, line, setting, notPossible);
               !why.empty()) {
      return broke(why);
    }
    if (!interruptFailure.empty()) return broke("while the add-in pumped, " + interruptFailure);
    skipped += notPossible;
    const SoakWatch::Step seen = watch.AfterStep();
    if (const std::string why = SettingsWritten(world, line, settings); !why.empty()) {
      return broke(why);
    }
    if (!seen.strayWrite.empty()) {
      return broke("the add-in changed " + seen.strayWrite + ", which the user had not selected");
    }
    if (afterTearDown >= 0) {
      // Torn down: nothing of the add-in runs, not even when it is released.
      if (seen.hostCalls) return broke("the add-in called the host after its tear-down");
      if (seen.shown) return broke("the add-in showed or launched something after its tear-down");
      if (line == "host restart") {
        afterTearDown = -1;
        reports = 0;
        ++lives;
        required.push_back("addin start");
      }
      continue;
    }
    if ((reports += seen.errorReports) > 1)
      return broke("a second error report in one add-in life");
    if (line == "addin shutdown") {
      if (!TornDown(world)) return broke("the add-in is not torn down");
      afterTearDown = actions.ActionsAfterTearDown();
    }
  }
  world.Finish();
  out << "soak " << options.seed << ": " << options.operations << " operations (" << skipped
      << " not possible at their moment), " << interrupted
      << " interruptions while the add-in pumped, " << lives << " add-in lives on host " << host
      << ", every promise kept\n";
  return 0;
}

}  // namespace qvx::scenario
