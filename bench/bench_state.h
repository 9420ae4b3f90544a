// The test add-in (sim/test_addin.h) for benchmarks, with the one question a
// benchmark asks after its loop.
#pragma once

#include "sim/test_addin.h"

namespace qvx::bench {

struct BenchState : sim::TestAddin {
  // True when nothing was shown (a failure report is a form) or left pending.
  bool Clean() const { return ui.Forms().empty() && ui.MessageBoxes().empty() && !s.err.pending(); }
};

}  // namespace qvx::bench
