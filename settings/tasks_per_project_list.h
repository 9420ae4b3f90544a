// cTasksPerProjectList: the catalogue of projects and their activities, kept
// as the text of the registry value "MyProjectsTasks".
//
// For now this is the catalogue's seam only: it keeps the text as read and
// gives it back unchanged, and it knows no projects. The parser and the tree
// of projects and activities come with the catalogue itself; the signatures
// here are the ones the settings record calls.
//
//   cTasksPerProjectList catalogue;
//   catalogue.FromString(s, text);
//   catalogue.ToString(s) == text;
//   std::shared_ptr<cSingleList> projects = catalogue.GetProjectsList(s);  // empty
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "settings/single_list.h"

namespace qvx {

class AddinState;

class cTasksPerProjectList {
 public:
  // Replaces the catalogue by the one the text describes.
  void FromString(AddinState& s, std::string_view Text);
  // The catalogue as text, project lines joined by CR LF.
  std::string ToString(AddinState& s);
  // A new list of the project names, in catalogue order.
  std::shared_ptr<cSingleList> GetProjectsList(AddinState& s);

 private:
  std::string text_;
};

}  // namespace qvx
