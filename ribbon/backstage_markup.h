// The add-in's backstage tab "Quorvix Client": the tools of the main menu
// and the help entries, as tasks that run through SubExecuteAction.
//
// The label of the lists task is formed from the titles when the document is
// built ("My Project and Activity Lists") and stays until the host asks for a
// new document. No trap of its own: a failure (no settings) goes to the
// explorer document's.
//
//   xml += GetBackStageXML(s);  // between </ribbon> and <contextMenus>
#pragma once

#include <string>

namespace qvx {

class AddinState;

std::string GetBackStageXML(AddinState& s);

}  // namespace qvx
