// The listener windows that the companion posts registered messages to.
//
// Windows: a hidden top-level window with the caption, subclassed with
// SetWindowLongPtr so that its procedure sees every message first and hands
// the rest on with CallWindowProc. POSIX: a named local datagram socket per
// caption; registered message names map to ids from 0xC000 up.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>

namespace qvx::platform {

// Called for every message the window receives; returns true if handled
// (the procedure's result is then 0), false to pass it to the previous one.
using WindowMessageHandler =
    std::function<bool(uint32_t message, intptr_t wParam, intptr_t lParam)>;

// A live listener window; destroying it unhooks and destroys the window.
class ListenerWindow {
 public:
  virtual ~ListenerWindow() = default;
  virtual void SetCaption(std::string_view caption) = 0;
};

class MessageWindows {
 public:
  virtual ~MessageWindows() = default;
  // RegisterWindowMessageA: the same id for the same name; 0 on failure.
  virtual uint32_t RegisterMessage(std::string_view name) = 0;
  // Creates the hidden window, gives it the caption and hooks the handler.
  // Returns nullptr on failure.
  virtual std::unique_ptr<ListenerWindow> CreateListener(std::string_view caption,
                                                         WindowMessageHandler handler) = 0;
  // Finds a window by caption and posts a message to it (companion side, tests).
  virtual bool Post(std::string_view caption, uint32_t message, intptr_t wParam,
                    intptr_t lParam) = 0;
};

}  // namespace qvx::platform
