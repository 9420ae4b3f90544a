// The journal of the companion stand-in (QuorvixClient.exe beside the DLL):
// each started stand-in appends one line, "<its creation time>\t<argument>",
// to the file named by QVX_COMPANION_JOURNAL, which the test program sets for
// itself and so for every process the add-in starts.
//
// The add-in starts companions without waiting, several back to back, and
// they write in whatever order they get to run; their creation times give
// the order of the launches.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace qvx::winetest {

// Points the variable at a journal in the temporary folder, and puts this
// program in a job that its launches join, so that none is missed.
void SetUpJournal();
// Empties the journal before a test.
void ClearJournal();
// Waits (pumping this thread's messages) until no stand-in is running, then
// gives the arguments of the journal in launch order. REQUIREs that the
// stand-ins end within a generous limit.
std::vector<std::string> FinishedLaunches();
// The number of lines in the journal so far.
size_t JournalLines();

// Runs a program of the test side, pumping this thread's messages until it
// ends (two minutes at the most); its exit code. REQUIREs that it starts.
DWORD RunAndWait(std::wstring command);

// Lets this thread's pending messages through.
void PumpOnce();
// Pumps until `done` or the limit; returns whether `done` became true.
template <class Done>
bool PumpUntil(Done&& done, DWORD limitMs = 20000) {
  for (const DWORD start = GetTickCount();;) {
    PumpOnce();
    if (done()) return true;
    if (GetTickCount() - start > limitMs) return false;
  }
}

}  // namespace qvx::winetest
