#include "apps/qvx-sim/soak.h"

#include <algorithm>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "apps/qvx-sim/world.h"

namespace qvx::scenario {
namespace {

constexpr char kSettingsKey[] = "Software\\Zenbrook\\QVX";
constexpr char kErrorReportCaption[] = "Unknown Exception";

// A configured user on an old or a new host, with a catalogue, a few items
// and the calendar open.
std::vector<std::string> SetUp(std::mt19937& random) {
  std::vector<std::string> lines = {
      "registry set DBChoice 1",
      "registry set DBConnectionString \"DSN=Timesheets\"",
      "registry set AllowAppointmentItems -1",
      "registry set AllowTaskItems -1",
      "registry set showProjectTaskToolbar -1",
      "registry set CustomField1Active -1",
      "registry set CustomField1List \"Red\\r\\nGreen\"",
      "catalogue set \"Alpha,5,,:Design,;Review,\" \"Beta,8,,:Build,\"",
  };
  lines.push_back(random() % 2 ? "host version 11.0.0.0" : "host version 16.0.0.0");
  for (int i = 1; i <= 6; ++i) {
    lines.push_back("item appointment A" + std::to_string(i) + " \"2026-03-0" + std::to_string(i) +
                    " 09:00\" \"2026-03-0" + std::to_string(i) + " 10:00\"");
  }
  for (int i = 1; i <= 3; ++i) lines.push_back("item task T" + std::to_string(i) + " none none");
  lines.push_back("addin start");
  lines.push_back("explorer open calendar");
  return lines;
}

class ActionSource {
 public:
  explicit ActionSource(std::mt19937& random) : random_(random) {}

  std::string Next(int faultPercent) {
    if (Below(100) < static_cast<uint32_t>(faultPercent)) return Fault();
    static constexpr int kKinds = 16;
    switch (Below(kKinds)) {
      case 0:
        return "explorer switch " + Pick({"calendar", "tasks", "inbox"});
      case 1:
      case 2:
        return Selection();
      case 3:
        return "bar pick Quorvix Project " + Pick({"Alpha", "Beta"});
      case 4:
        return "bar pick Quorvix Activity " + Pick({"Design", "Review", "Build"});
      case 5:
        return "bar type Quorvix Project " + Pick({"\"Side job\"", "\"\"", "Alpha"});
      case 6:
        return "bar click Quorvix " + Pick({"Publish", "Withdraw", "\"All Fields...\""});
      case 7:
        return "ribbon open Microsoft.Outlook.Explorer";
      case 8:
        return "ribbon choose " + Pick({"cboProjectCal", "cboProjectTask"}) + " " +
               Pick({"Alpha", "Beta"});
      case 9:
        return "ribbon click " + Pick({"cmdReportCal", "cmdWithdrawReportCal", "cmdReportTask"});
      case 10:
        return "inspector open " + Subject();
      case 11:
        return "inspector close";
      case 12:
        return "post client " + Pick({"0", "2", "3"});
      case 13:
        return "post manager " + Pick({"0", "1"});
      case 14:
        // The companion rewrites the settings the add-in reads.
        return "registry set " + Pick({"ProjectTitle", "ActivityTitle", "ProjectMandatory"}) + " " +
               Pick({"Job", "-1", "0", "\"\""});
      default:
        switch (Below(20)) {
          case 0:
            return "item delete " + Subject();
          case 1:
            // A new item, so that deletions do not empty the folders for good.
            return Below(2) ? "item task T" + std::to_string(1 + Below(3)) + " none none"
                            : "item appointment A" + std::to_string(1 + Below(6)) +
                                  " \"2026-03-09 09:00\" \"2026-03-09 10:00\"";
          default:
            return "pump";
        }
    }
  }

 private:
  uint32_t Below(uint32_t n) { return static_cast<uint32_t>(random_() % n); }
  std::string Pick(std::initializer_list<const char*> choices) {
    return *(choices.begin() + Below(static_cast<uint32_t>(choices.size())));
  }
  std::string Subject() {
    return Below(3) == 0 ? "T" + std::to_string(1 + Below(3)) : "A" + std::to_string(1 + Below(6));
  }
  std::string Selection() {
    std::string line = "explorer select";
    const uint32_t count = Below(4);
    for (uint32_t i = 0; i < count; ++i) line += " " + Subject();
    return line;
  }
  std::string Fault() {
    return "host fail " +
           Pick({"ActiveExplorer.Selection", "ActiveExplorer.CurrentFolder", "ActiveExplorer",
                 "ActiveInspector", "ActiveInspector.CurrentItem", "Explorers", "Inspectors",
                 "Session", "Session.Categories", "ActiveExplorer.CommandBars",
                 "Session.GetDefaultFolder(9).Items", "Session.GetDefaultFolder(13).Items"}) +
           " " + Pick({"-2147467259", "-2147352567", "13", "91"}) + " soak 1";
  }

  std::mt19937& random_;
};

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

size_t ErrorReports(World& world) {
  size_t count = 0;
  for (const auto& form : world.ui().Forms()) count += form.caption == kErrorReportCaption;
  return count;
}

}  // namespace

int RunSoak(const SoakOptions& options, const VerbTable& verbs, std::ostream& out,
            std::ostream& err) {
  std::mt19937 random(options.seed);
  World world;
  std::ostringstream quiet;
  world.out = &quiet;
  ActionSource actions(random);
  std::vector<std::string> setUp = SetUp(random);
  long skipped = 0;
  std::vector<std::string> settings;
  const long total = options.operations + static_cast<long>(setUp.size());
  for (long step = 0; step < total; ++step) {
    const bool setting = step < static_cast<long>(setUp.size());
    const std::string line =
        setting ? setUp[static_cast<size_t>(step)] : actions.Next(options.faultPercent);
    const auto broke = [&](const std::string& what) {
      err << "soak " << options.seed << ", step " << step << ": " << line << "\n  " << what << "\n";
      return 1;
    };
    Script script;
    if (ParseScript(line, "soak", script) || script.statements.empty()) {
      return broke("the soak wrote a malformed statement");
    }
    const std::vector<std::string>& words = script.statements.front().words;
    size_t taken = 0;
    const Verb* verb = verbs.Find(words, taken);
    if (!verb) return broke("no such verb");
    try {
      verb->handler(world, Args(std::vector<std::string>(words.begin() + static_cast<long>(taken),
                                                         words.end()),
                                verb->usage));
    } catch (const ExpectationFailed&) {
      if (setting) return broke("the set-up failed");
      ++skipped;  // not possible at this moment
    } catch (const UsageError& e) {
      if (setting) return broke(std::string("the set-up failed: ") + e.what());
      ++skipped;
    } catch (const std::exception& e) {
      return broke(std::string("an exception came out of the add-in: ") + e.what());
    } catch (...) {
      return broke("an exception came out of the add-in");
    }
    const bool ownWrite = line.rfind("registry set", 0) == 0 || line.rfind("catalogue set", 0) == 0;
    if (ownWrite) {
      settings = SettingsOf(world);
    } else if (const std::vector<std::string> now = SettingsOf(world); now != settings) {
      std::string change;
      for (const std::string& value : now) {
        if (std::find(settings.begin(), settings.end(), value) == settings.end()) {
          change += " " + value;
        }
      }
      return broke("the add-in wrote the settings key:" + change);
    }
    if (ErrorReports(world) > 1) return broke("a second error report was shown");
  }
  world.Finish();
  out << "soak " << options.seed << ": " << options.operations << " operations (" << skipped
      << " not possible at their moment), " << ErrorReports(world)
      << " error report, every promise kept\n";
  return 0;
}

}  // namespace qvx::scenario
