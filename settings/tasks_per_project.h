// cTasksPerProject: one project of the catalogue with its activities.
//
// `dicList` holds the activities under their names, case-blind and in the
// order read (never sorted on reading); an entry's key is its activity's
// name itself (one string for both), which getItemIndex relies on. The activity list's text is the
// activity records joined by a delimiter (";" in the catalogue):
//
//   cTasksPerProject p;
//   p.FromString(s, "Design,2011-4-15;Review_COLON_ final,", ";");
//   p.GetItem(s, 1) == "Review: final";
//   p.getItemIndex(s, "Design") == 0;    // exact; "DESIGN" gives the count, 2
//   p.ToString(s, ";", false) == "Design,2011-4-15;Review_COLON_ final,"
//
// Each operation traps its own failure, reports it under its label
// ("TasksPerProject.getItemIndex", "TasksPerProject.GetItem",
// "cTasksPerProject.GetString" for ToString and ToStringTab,
// "cTasksPerProject.SetString" for FromString,
// "cTasksPerProject.PopulateComboList") and returns its empty result.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "core/object.h"
#include "core/ordered_dictionary.h"
#include "core/trap.h"
#include "settings/project_client.h"
#include "settings/tasks_client.h"

namespace qvx {

class cTasksPerProject {
 public:
  OrderedDictionary<cTasksClient, ActivityName> dicList;
  std::shared_ptr<cProjectClient> Project = std::make_shared<cProjectClient>();

  // 0-based position of the activity named exactly Item, case included; the
  // count when there is none. Constant time.
  int16_t getItemIndex(FailureSink& s, std::string_view Item);
  // The name of the activity at a 0-based index, trimmed; "" outside the list.
  std::string GetItem(FailureSink& s, int16_t Index);
  // The activity records joined, the whole trimmed. Sort replaces the
  // dictionary by its sorted form (when it has more than one entry).
  std::string ToString(FailureSink& s, std::string_view Delimiter, bool Sort);
  // The joined and trimmed records, appended to `out`; no trap, no sort.
  void AppendRecords(FailureSink& s, std::string& out, std::string_view Delimiter) const;
  // Replaces the activities by those of Text: empty parts skipped, the first
  // of a name wins, a missing or bad due date left empty. No sort.
  void FromString(FailureSink& s, std::string_view Text, std::string_view Delimiter);
  // Fills a combo box with the activity names (empty ones skipped) and
  // selects Value; a text the control showed before wins and is written back.
  void PopulateComboList(FailureSink& s, const Object& Control, std::string& Value, bool AddBlank);
  // The non-empty names joined by tabs, trimmed, then a tab and a blank;
  // each skipped name adds one more tab before that.
  std::string ToStringTab(FailureSink& s);
};

}  // namespace qvx
