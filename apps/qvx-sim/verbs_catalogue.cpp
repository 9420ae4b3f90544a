// catalogue set / expect projects / expect activities / expect catalogue
#include "apps/qvx-sim/verbs.h"
#include "apps/qvx-sim/world.h"
#include "core/text.h"
#include "settings/my_settings.h"
#include "state/main_globals.h"

namespace qvx::scenario {
namespace {

std::string Lines(const Args& a, size_t from) {
  std::vector<std::string> lines;
  for (size_t i = from; i < a.size(); ++i) lines.push_back(a.At(i));
  return Join(lines, "\r\n");
}

// The settings record of the running add-in; its catalogue is what was read.
cMySettings& SettingsOf(World& w) {
  if (!w.HasAddin() || !w.addin().state().main.objMySettings) {
    throw ExpectationFailed("settings read", "(no settings: the add-in is not connected)");
  }
  return *w.addin().state().main.objMySettings;
}

// Words joined for a message: each shown as a script writes it.
std::string Listed(const std::vector<std::string>& words) {
  std::string out;
  for (const std::string& word : words) out += (out.empty() ? "" : " | ") + Shown(word);
  return out;
}

}  // namespace

void RegisterCatalogueVerbs(VerbTable& table) {
  table.Add("catalogue set", "catalogue set LINE...",
            "writes MyProjectsTasks: the project lines joined by CR LF (none: empty)",
            [](World& w, const Args& a) {
              if (!w.registry().SetString(kSettingsKey, "MyProjectsTasks", Lines(a, 0))) {
                throw UsageError("the registry file refused MyProjectsTasks");
              }
            });
  table.Add("expect projects", "expect projects NAME...",
            "the add-in's project names (Projects), exactly these in this order",
            [](World& w, const Args& a) {
              std::vector<std::string> expected, seen;
              for (size_t i = 0; i < a.size(); ++i) expected.push_back(a.At(i));
              const cMySettings& settings = SettingsOf(w);
              if (settings.Projects) {
                for (const auto& entry : settings.Projects->dicList) seen.push_back(entry.value);
              }
              if (expected != seen) throw ExpectationFailed(Listed(expected), Listed(seen));
            });
  table.Add("expect activities", "expect activities PROJECT NAME...",
            "the activities of a project of the add-in's catalogue, in order",
            [](World& w, const Args& a) {
              a.Expect(1, 1000000);
              std::vector<std::string> expected, seen;
              for (size_t i = 1; i < a.size(); ++i) expected.push_back(a.At(i));
              const auto* project = SettingsOf(w).MyProjectsTasks->dicList.Find(a.At(0));
              if (project == nullptr)
                throw ExpectationFailed(Listed(expected), "(no such project)");
              for (const auto& entry : (*project)->dicList) seen.push_back(entry.value.Activity);
              if (expected != seen) throw ExpectationFailed(Listed(expected), Listed(seen));
            });
  table.Add("expect catalogue", "expect catalogue LINE...",
            "the add-in's catalogue written as text: these lines joined by CR LF",
            [](World& w, const Args& a) {
              cMySettings& settings = SettingsOf(w);
              ExpectEqual(Lines(a, 0), settings.MyProjectsTasks->ToString(w.addin().state()));
            });
}

}  // namespace qvx::scenario
