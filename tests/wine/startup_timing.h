// A measurement, not a test: the add-in's own work in OnConnection and
// OnStartupComplete through COM, for a configured user with PROJECTS (1,000
// unless told) projects of 20 activities (bench/catalogue_text_sample.h).
//
//   wine qvx_wine_tests.exe --time-startup [PROJECTS [STARTS]]
//
// Two series of STARTS (5 unless told) starts of a fresh add-in object: with
// automatic synchronisation, whose start-up complete starts the companion
// through the shell, and without. Besides the wall time of each call it gives
// this thread's processor time, which leaves out the new process and the
// waits of a loaded machine (the simulated Outlook's share is in both); that
// time comes in clock ticks of 10 ms, so only a mean over many starts is
// steady. Prints each start (the last only, past ten), the median and minimum
// wall time and the mean processor time. Returns 0 when every start succeeded.
#pragma once

#include <cstddef>

namespace qvx::winetest {

int TimeStartup(size_t projects, int starts);

}  // namespace qvx::winetest
