// The argument texts that the add-in hands the companion programs. Each is
// ONE argument: the launcher puts it after the quoted program path, and the
// companion takes everything behind that path as one value.
//
//   ReportCommand("S", {ReportEntry("E1", ""), ReportEntry("E2", "")}) == "0|S|E1;,E2;"
//   AutomaticReportCommand("S", "E") == "0|S|E"
//   WithdrawCommand("S", "E", "") == "2|S|E;"
//   StatisticsCommand("Data Source=x", "Jane Doe") == "Data_SPACE_Source=x|0|Jane_SPACE_Doe"
//
// StoreID and EntryID are the host's text, copied as they are. The start
// field is empty except for a recurring occurrence, where it is the item's
// Start in the environment's default text form (see OccurrenceStartText).
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/variant.h"

namespace qvx::companion {

// An entry of a report or withdrawal: EntryID, ";", start.
std::string ReportEntry(std::string_view entryId, std::string_view start);

// "0|StoreID|" and the entries joined by ",".
std::string ReportCommand(std::string_view storeId, const std::vector<std::string>& entries);

// The report of a completed task: "0|StoreID|EntryID", with no ";" and no start.
std::string AutomaticReportCommand(std::string_view storeId, std::string_view entryId);

// "2|StoreID|EntryID;start".
std::string WithdrawCommand(std::string_view storeId, std::string_view entryId,
                            std::string_view start);

// The start field of an occurrence: Start by the default conversion to text
// (date and time in the local short format).
std::string OccurrenceStartText(const Variant& start);

// The connection text of a file database kept in `folder` (DBChoice 0); the
// folder is taken without one trailing separator.
std::string FileDatabaseConnection(std::string_view folder);

// Connection, "|0|", user, with every blank of the whole text as "_SPACE_".
std::string StatisticsCommand(std::string_view connection, std::string_view userName);

}  // namespace qvx::companion
