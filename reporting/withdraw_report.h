// The withdraw command: the current item's report is taken back from the
// database by the companion, after the user has confirmed it.
//
//   WithdrawReportFromDB(s);   // QuorvixClient "2|StoreID|EntryID;start"
#pragma once

#include <string>

#include "core/object.h"

namespace qvx {

class AddinState;

// Entry point of the withdraw commands, always for one item (the first of a
// selection). An item without a ReportedID (read untrimmed: blanks count as
// reported) is passed over with no word; otherwise the user is asked, with
// the report's number, and on "Yes" the store is found and the withdrawal
// handed over. Trap "Main.WithdrawReportFromDB".
void WithdrawReportFromDB(AddinState& s) noexcept;

// Hands the withdrawal of objItem in store strStoreID to QuorvixClient; the
// start field only for a recurring occurrence. Trap "Main.WithReportFromDB".
void WithReportFromDB(AddinState& s, const std::string& strStoreID, const Object& objItem) noexcept;

}  // namespace qvx
