// SubExecuteAction: what the ribbon's buttons, context menu entries and
// backstage tasks do, by the id of the control pressed.
//
// Report and withdraw (every context's form and the context menus' own)
// run the operations that work out from the active window what they apply
// to; the sync button, the backstage tools and the help entries start the
// companion, the statistics tool, the help file or a page of the web site.
// An id outside the table shows "not implemented - " and the id. No
// confirmation of its own: the operations ask where they ask.
//
//   SubExecuteAction(s, control);  // cmdReportCal: ReportItemsToDB
#pragma once

#include "core/variant.h"

namespace qvx {

class AddinState;

// Trap "SubExecuteAction".
void SubExecuteAction(AddinState& s, const Variant& control) noexcept;

}  // namespace qvx
