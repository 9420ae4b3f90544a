// The test add-in (sim/test_addin.h) with a settings record, for tests of
// procedures that read the settings: launches are recorded, not spawned, and
// the add-in's folder is "/opt/qvx" unless told.
#pragma once

#include <memory>
#include <string_view>

#include "settings/my_settings.h"
#include "sim/test_addin.h"
#include "unit/support/failure_report.h"

namespace qvx::testing {

struct TestAddin : sim::TestAddin {
  explicit TestAddin(sim::TestAddinOptions options = {.addinFolder = "/opt/qvx"})
      : sim::TestAddin(std::move(options)) {
    s.main.objMySettings = std::make_unique<cMySettings>();
  }

  // Whether a report was shown of a failure trapped under `label`.
  ::testing::AssertionResult Reported(std::string_view label) const {
    return ReportsTrap(Reports(), label);
  }

  cMySettings& settings() { return *s.main.objMySettings; }
};

}  // namespace qvx::testing
