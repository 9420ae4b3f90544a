// The report command: validation of the current item or selection and its
// hand-over to the companion as one command line.
//
//   ReportItemsToDB(s);   // toolbar and ribbon "Report"
//
// Each item is tested in turn: private (AllowPrivate), recurring
// (AllowRecurring), then the mandatory fields. Acceptable items go to
// QuorvixClient as "0|StoreID|EntryID;start,EntryID;start..." (start only for
// a recurring occurrence); then the problems of the others are shown in
// frmMessage. Nothing is written on the items; the companion does that.
#pragma once

#include <string>

#include "core/object.h"

namespace qvx {

class AddinState;

// Entry point of the report commands: the selection, the confirmation (when
// AskForConfirmationBeforeReporting), the store, then ReportToDB. Without an
// item, a "No", or a store, nothing happens and nothing is said.
// Trap "Main.ReportItemsToDB".
void ReportItemsToDB(AddinState& s) noexcept;

// Validates obj (a Selection or one item) and hands the acceptable items of
// the store strStoreID over. With DontAllowMultipleItemsReporting only the
// first item of a Selection is looked at. A failure (an item that has gone,
// or lacks Sensitivity or IsRecurring) is reported under "Main.ReportToDB"
// and ends the validation: nothing is sent and no problem shown.
void ReportToDB(AddinState& s, const std::string& strStoreID, const Object& obj) noexcept;

// accumulator = text if it is empty, else accumulator + separator + text.
void AppendWithSeparator(std::string& accumulator, const std::string& text,
                         const std::string& separator);

}  // namespace qvx
