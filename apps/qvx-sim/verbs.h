// The verbs of the scenario language, one registration function per area,
// and the helpers the verbs share.
#pragma once

#include <string>
#include <string_view>

#include "apps/qvx-sim/runner.h"

namespace qvx::scenario {

void RegisterRegistryVerbs(VerbTable& table);
void RegisterHostVerbs(VerbTable& table);
void RegisterAddinVerbs(VerbTable& table);
void RegisterDialogVerbs(VerbTable& table);
void RegisterCompanionVerbs(VerbTable& table);
void RegisterShowVerbs(VerbTable& table);
void RegisterMailLibraryVerbs(VerbTable& table);
void RegisterSelectionVerbs(VerbTable& table);
void RegisterReportVerbs(VerbTable& table);
void RegisterCatalogueVerbs(VerbTable& table);
void RegisterTaggingVerbs(VerbTable& table);
void RegisterRibbonVerbs(VerbTable& table);

// Fails the expectation unless the two texts are equal.
void ExpectEqual(const std::string& expected, const std::string& seen);
// A text as a script writes it: control characters as \r \n \t escapes.
std::string Shown(std::string_view text);

}  // namespace qvx::scenario
