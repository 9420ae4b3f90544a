// qvx-sim soak: random user actions against the add-in in one simulated host
// while host members fail at random, with the add-in's promises checked
// after every step.
//
//   qvx-sim soak SEED OPERATIONS [FAULT-PERCENT]
//
// The actions are statements of the scenario language, drawn from SEED
// (soak_actions.h): folder switches, selections, tagging from the bars and the
// ribbon, reports, explorers and inspectors opening and closing, items
// vanishing, messages on both channels, the companion rewriting the settings,
// (FAULT-PERCENT of the steps, 10 by default) a host member made to fail for
// its next call, and now and then a tear-down, a few actions, and a restart
// with a fresh add-in. While the add-in's own loops let pending work through,
// items vanish or appear and messages arrive (half the time). An action that
// cannot be done at that moment is skipped. After each step (soak_watch.h):
//   - nothing but a scenario's own outcome came out of the add-in (any other
//     exception crossed an entry point);
//   - at most one error report has been shown in this add-in life;
//   - the settings key holds exactly what the soak itself wrote there, but
//     for the bars' positions, which the add-in keeps there;
//   - no item changed that the user had neither selected in the active
//     explorer nor open in the active inspector;
//   - once torn down, the add-in called nothing on the host and showed or
//     launched nothing.
// Run under the sanitizers (the debug build), a memory fault ends the run.
#pragma once

#include <cstdint>
#include <ostream>

#include "apps/qvx-sim/runner.h"

namespace qvx::scenario {

struct SoakOptions {
  uint32_t seed = 1;
  long operations = 1000;
  int faultPercent = 10;
};

// 0 when every step kept the promises; 1 with the step that broke one on `err`.
int RunSoak(const SoakOptions& options, const VerbTable& verbs, std::ostream& out,
            std::ostream& err);

}  // namespace qvx::scenario
