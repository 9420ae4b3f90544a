// Plays the user in front of the add-in's modal windows: a thread of the test
// program watches for dialogs of this process (message boxes and the forms
// shown as dialogs), records what they say and dismisses them, so that a
// modal window never blocks a test and every test can state which windows
// it expected to see.
//
// A message box is answered with its first button (OK, Yes); a form dialog
// is closed with its close box, which its model takes as the user's close.
// Nothing in the add-in knows about this: it sees an ordinary user.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace qvx::winetest {

struct SeenDialog {
  std::wstring caption;
  std::vector<std::wstring> texts;  // of its static and edit controls
  int pictures = 0;                 // static controls that show a bitmap
  bool messageBox = false;

  // True if any text contains `part`.
  bool Shows(const std::wstring& part) const;
};

class UiWatcher {
 public:
  // The dialogs seen since the last call.
  std::vector<SeenDialog> Take();
};

// The one watcher of the test program, started by the first call.
UiWatcher& Watcher();

}  // namespace qvx::winetest
