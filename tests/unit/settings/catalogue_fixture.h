// Helpers for the catalogue tests: a settings fixture with a catalogue, and
// short views of the tree.
#pragma once

#include <string>
#include <vector>

#include "core/dates.h"
#include "settings/tasks_per_project_list.h"
#include "settings_fixture.h"

namespace qvx::testing {

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
};

inline Strings Activities(const cTasksPerProject& project) {
  Strings names;
  for (const auto& entry : project.dicList) names.push_back(entry.value.Activity);
  return names;
}

}  // namespace qvx::testing
