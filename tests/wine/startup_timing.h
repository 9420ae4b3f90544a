// A measurement, not a test: the add-in's own work in OnConnection and
// OnStartupComplete through COM, for a configured user with a catalogue of
// PROJECTS (1,000 unless told) projects of 20 activities
// (bench/catalogue_text_sample.h) in the registry.
//
// The companion is started through the shell (WScript.Shell's Run, else
// ShellExecute), so its process creation runs in the system's code and the
// new process; besides the wall time of each call (QueryPerformanceCounter),
// this thread's processor time is given, which leaves out the new process and
// the waits for a loaded machine. The simulated Outlook runs on this thread
// too: its share is in both figures.
//
//   wine qvx_wine_tests.exe --time-startup [PROJECTS [STARTS]]
//
// Runs two series of STARTS (5 unless told) starts of a fresh add-in object:
// with automatic synchronisation, whose start-up complete starts the
// companion, and without, where no process is created. Prints each start
// (the last only, past ten), then the median and minimum wall time and the
// mean processor time, split between the two calls. The processor time comes
// in the system's clock ticks of 10 ms, so only a mean over many starts is
// steady. Returns 0 when every start succeeded.
#pragma once

#include <cstddef>

namespace qvx::winetest {

int TimeStartup(size_t projects, int starts);

}  // namespace qvx::winetest
