// cTasksPerProjectList: the catalogue of projects and their activities, held
// as the text of the registry value "MyProjectsTasks".
//
// `dicList` holds the projects under their names, case-blind, in the order
// of the text (never sorted on reading); the first project of a name wins.
//
// Text: one line per project, joined by CR LF with none after the last. A
// line is the project record (cProjectClient), ":", and the activity records
// (cTasksClient) joined by ";"; the ":" stays when there are none. Names and
// dates pass through EncodeValue and DecodeValue, so ":", ";" and "," inside
// a name split nothing. A text written by ToString reads back to the same
// tree and writes again character for character:
//
//   Alpha_COMMA_ phase 1,5,2011-3-1,:Design,2011-4-15;Review_COLON_ final,
//   Beta,0,,:
//
// Reading keeps one quirk: a project line whose colour or dates are missing
// (or whose colour is no number) takes them from the line before it.
//
// Failures are reported under "cTasksPerProjectList.FromString",
// "cTasksPerProjectList.ToString" and "cTasksPerProjectList.GetProjectsList".
// A failed read (an empty line, a line with no ":") keeps the projects read
// so far and loses the rest of the text.
//
//   cTasksPerProjectList catalogue;
//   catalogue.FromString(s, text);
//   auto* project = catalogue.dicList.Find("alpha, PHASE 1");   // case-blind
//   std::shared_ptr<cSingleList> names = catalogue.GetProjectsList(s);
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "core/ordered_dictionary.h"
#include "core/trap.h"
#include "settings/single_list.h"
#include "settings/tasks_per_project.h"

namespace qvx {

class cTasksPerProjectList {
 public:
  OrderedDictionary<std::shared_ptr<cTasksPerProject>> dicList;

  // A new list of the non-empty project names, in catalogue order, unsorted.
  std::shared_ptr<cSingleList> GetProjectsList(FailureSink& s);
  // The catalogue as text.
  std::string ToString(FailureSink& s);
  // Replaces the catalogue by the one the text describes.
  void FromString(FailureSink& s, std::string_view Text);
};

}  // namespace qvx
