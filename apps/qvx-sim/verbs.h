// The verbs of the scenario language, one registration function per area,
// and the helpers the verbs share.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "apps/qvx-sim/runner.h"

namespace qvx::sim {
class SimFolder;
class SimItem;
}  // namespace qvx::sim
namespace qvx::platform {
struct FormRecord;
}

namespace qvx::scenario {

void RegisterRegistryVerbs(VerbTable& table);
void RegisterHostVerbs(VerbTable& table);
void RegisterAddinVerbs(VerbTable& table);
void RegisterDialogVerbs(VerbTable& table);
// Called by RegisterDialogVerbs: the user's acts in a dialog and what they see.
void RegisterDialogUserVerbs(VerbTable& table);
void RegisterCompanionVerbs(VerbTable& table);
void RegisterShowVerbs(VerbTable& table);
void RegisterMailLibraryVerbs(VerbTable& table);
void RegisterSelectionVerbs(VerbTable& table);
void RegisterReportVerbs(VerbTable& table);
void RegisterCatalogueVerbs(VerbTable& table);
void RegisterTaggingVerbs(VerbTable& table);
void RegisterRibbonVerbs(VerbTable& table);
void RegisterRibbonUserVerbs(VerbTable& table);
void RegisterRibbonStandInVerbs(VerbTable& table);
void RegisterBarVerbs(VerbTable& table);
// Called by RegisterBarVerbs: the copies of the bars' state for the explorer ribbon.
void RegisterBarValueVerbs(VerbTable& table);
void RegisterWindowVerbs(VerbTable& table);
void RegisterFieldsVerbs(VerbTable& table);
void RegisterViewVerbs(VerbTable& table);

// A folder by name: "calendar", "tasks", "inbox", or any folder's own name; a
// usage error when there is none.
std::shared_ptr<sim::SimFolder> FolderNamed(World& w, const std::string& name);

// The first item with this subject in the active explorer's folder, else in
// any folder; a usage error when there is none.
std::shared_ptr<sim::SimItem> ItemNamed(World& w, const std::string& subject);

// The next dialog shown and not yet expected, which must have this caption.
const platform::FormRecord& NextForm(World& w, const std::string& caption);

// Fails the expectation unless the two texts are equal.
void ExpectEqual(const std::string& expected, const std::string& seen);
// Words as a script writes them, "(none)" for no word.
std::string Joined(const std::vector<std::string>& words);
// Fails the expectation unless the two lists of words are equal.
void ExpectWords(const std::vector<std::string>& expected, const std::vector<std::string>& seen);
// The words of `a` from index `from` on.
std::vector<std::string> Rest(const Args& a, size_t from);
// A text as a script writes it: control characters as \r \n \t escapes.
std::string Shown(std::string_view text);

}  // namespace qvx::scenario
