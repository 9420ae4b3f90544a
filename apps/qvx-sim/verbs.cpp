#include "apps/qvx-sim/verbs.h"

#include <cstdio>

namespace qvx::scenario {

void RegisterAllVerbs(VerbTable& table) {
  RegisterRegistryVerbs(table);
  RegisterHostVerbs(table);
  RegisterAddinVerbs(table);
  RegisterDialogVerbs(table);
  RegisterCompanionVerbs(table);
  RegisterShowVerbs(table);
  RegisterMailLibraryVerbs(table);
  RegisterSelectionVerbs(table);
  RegisterReportVerbs(table);
  RegisterCatalogueVerbs(table);
  RegisterTaggingVerbs(table);
  RegisterRibbonVerbs(table);
  RegisterRibbonUserVerbs(table);
  RegisterRibbonStandInVerbs(table);
  RegisterBarVerbs(table);
  RegisterWindowVerbs(table);
  RegisterFieldsVerbs(table);
  RegisterViewVerbs(table);
}

std::string Joined(const std::vector<std::string>& words) {
  std::string text;
  for (const auto& word : words) text += (text.empty() ? "" : " ") + Shown(word);
  return text.empty() ? "(none)" : text;
}

void ExpectWords(const std::vector<std::string>& expected, const std::vector<std::string>& seen) {
  if (expected != seen) throw ExpectationFailed(Joined(expected), Joined(seen));
}

std::vector<std::string> Rest(const Args& a, size_t from) {
  std::vector<std::string> words;
  for (size_t i = from; i < a.size(); ++i) words.push_back(a.At(i));
  return words;
}

void ExpectEqual(const std::string& expected, const std::string& seen) {
  if (expected != seen) throw ExpectationFailed(Shown(expected), Shown(seen));
}

std::string Shown(std::string_view text) {
  std::string shown = "\"";
  for (const unsigned char c : text) {
    switch (c) {
      case '\r':
        shown += "\\r";
        break;
      case '\n':
        shown += "\\n";
        break;
      case '\t':
        shown += "\\t";
        break;
      case '"':
        shown += "\\\"";
        break;
      case '\\':
        shown += "\\\\";
        break;
      default:
        if (c < 0x20 || c == 0x7f) {
          char escaped[8];
          std::snprintf(escaped, sizeof escaped, "\\x%02X", c);
          shown += escaped;
        } else {
          shown += static_cast<char>(c);
        }
    }
  }
  return shown + "\"";
}

}  // namespace qvx::scenario
