// What the companion stand-ins accept: the command-line contract between the
// add-in and its companion programs, checked the way a real companion would
// parse it. Each program receives exactly ONE argument.
//
//   QuorvixClient: a section number ("6", "14", ... "28"), or an action
//     "0|StoreID|entries" (report) / "2|StoreID|entries" (withdraw), entries
//     joined by ",", each "EntryID" or "EntryID;start".
//   QuorvixOLAP: "connection|0|user" with every blank sent as "_SPACE_".
#pragma once

#include <string>
#include <string_view>

namespace qvx::standin {

struct Verdict {
  std::string kind;   // "section", "report", "withdraw", "statistics"; "" if rejected
  std::string error;  // why it was rejected, one line
  bool accepted() const { return !kind.empty(); }
};

Verdict CheckClientArgument(std::string_view argument);
Verdict CheckStatisticsArgument(std::string_view argument);

}  // namespace qvx::standin
