// The test add-in (sim/test_addin.h) for the settings tests: its registry
// file is the store under test.
#pragma once

#include <string>

#include "sim/temp_folder.h"
#include "sim/test_addin.h"

namespace qvx::testing {

inline constexpr const char* kQvxKey = "Software\\Zenbrook\\QVX";

using sim::TempFolder;

struct SettingsFixture : sim::TestAddin {
  // `registryOverride`: a registry of the test's own in place of the file.
  explicit SettingsFixture(platform::RegistryApi* registryOverride = nullptr)
      : sim::TestAddin({.registry = registryOverride}) {}
};

// The first line of a report, "At Line: 20", and its label line.
inline std::string ReportLine(const std::string& report, size_t index) {
  size_t start = 0;
  for (size_t i = 0; i < index; ++i) start = report.find("\r\n", start) + 2;
  return report.substr(start, report.find("\r\n", start) - start);
}

}  // namespace qvx::testing
