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

#include <atomic>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace qvx::winetest {

struct SeenDialog {
  std::wstring caption;
  std::vector<std::wstring> labels;  // static texts
  std::vector<std::wstring> edits;   // edit control texts
  bool messageBox = false;

  // True if any label or edit contains `text`.
  bool Shows(const std::wstring& text) const;
};

class UiWatcher {
 public:
  UiWatcher();
  ~UiWatcher();
  UiWatcher(const UiWatcher&) = delete;
  UiWatcher& operator=(const UiWatcher&) = delete;

  // The dialogs seen since the last call.
  std::vector<SeenDialog> Take();

 private:
  void Run();
  void Scan();

  DWORD process_ = GetCurrentProcessId();
  std::atomic<bool> stop_{false};
  std::mutex mutex_;
  std::vector<SeenDialog> seen_;
  std::vector<HWND> handled_;
  std::thread thread_;
};

// The one watcher of the test program.
UiWatcher& Watcher();

}  // namespace qvx::winetest
