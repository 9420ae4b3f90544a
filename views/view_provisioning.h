// Provisioning of the prepared views into a folder, at the user's first ask.
//
// LoadView finds the view in the folder, or creates it there (for everyone
// who opens the folder), gives the folder the fields its columns and filters
// name, fills it from its document, and applies it. A view that is there is
// only applied: it keeps what the user changed, and is never filled again.
//
//   LoadView(s, folder, "Client and Job", GetViewResName(s, "Client and Job"));
//
// Each operation traps and reports its own failures ("Views.LoadView", ...);
// nothing is rolled back, so a failure between the creation and the XML
// leaves the created view empty in the folder.
#pragma once

#include <string_view>

#include "core/object.h"

namespace qvx {

class AddinState;

// `viewName` is the name on screen, `resourceName` its GetViewResName.
void LoadView(AddinState& s, const Object& folder, std::string_view viewName,
              std::string_view resourceName);

// Adds the sixteen properties of tagging and reporting to the folder's field
// list, through a throw-away item of the folder's kind that is saved and
// deleted; a folder of another kind gets nothing.
void AddKRPFieldsToOutlookFolder(AddinState& s, const Object& folder);

// Deletes `viewName` from the folder if it is one of the names that a change
// of the titles leaves behind: "Project and Activity", "Project", "Activity",
// or any name holding "Items without". Call it for views outside the catalogue.
void DeleteOrphanedViews(AddinState& s, const Object& folder, std::string_view viewName);

// Deletes the folder's view `viewName`; a view that is not there is no failure.
void DeleteView(AddinState& s, const Object& folder, std::string_view viewName);

}  // namespace qvx
