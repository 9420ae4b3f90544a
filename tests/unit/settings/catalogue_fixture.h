// Helpers for the catalogue tests: a settings fixture with a catalogue, and
// short views of the tree.
#pragma once

#include <string>
#include <vector>

#include "core/dates.h"
#include "settings/tasks_per_project_list.h"
#include "settings_fixture.h"
#include "unit/support/failure_report.h"

namespace qvx::testing {

using Strings = std::vector<std::string>;

struct CatalogueFixture : SettingsFixture {
  cTasksPerProjectList catalogue;

  // The project names in enumeration order.
  Strings Projects() const {
    Strings names;
    for (const auto& entry : catalogue.dicList) names.push_back(entry.value->Project->ListName);
    return names;
  }
  const cTasksPerProject& Project(std::string_view name) const {
    const auto* found = catalogue.dicList.Find(name);
    if (found == nullptr) throw std::runtime_error("no project " + std::string(name));
    return **found;
  }
  // Whether one report was shown, of a failure trapped under `label`.
  ::testing::AssertionResult ReportedOnce(std::string_view label) const {
    if (Reports().size() != 1) {
      return ::testing::AssertionFailure() << Reports().size() << " reports";
    }
    return ReportIsTrap(Reports().front(), label);
  }
};

inline Strings Activities(const cTasksPerProject& project) {
  Strings names;
  for (const auto& entry : project.dicList) names.push_back(entry.value.Activity);
  return names;
}

}  // namespace qvx::testing
