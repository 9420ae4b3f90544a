// MessageWindows on Windows: RegisterWindowMessageA, and listener windows
// that the companion finds by caption with FindWindow: hidden top-level
// windows (a message-only window could not be found), subclassed with
// SetWindowLongPtr so that the handler sees every message first; what it
// does not handle goes to the previous procedure by CallWindowProc.
// Destroying the ListenerWindow unhooks and destroys the window.
#pragma once

#include "platform/message_windows.h"

namespace qvx::win32 {

class Win32MessageWindows final : public platform::MessageWindows {
 public:
  uint32_t RegisterMessage(std::string_view name) override;
  std::unique_ptr<platform::ListenerWindow> CreateListener(
      std::string_view caption, platform::WindowMessageHandler handler) override;
  bool Post(std::string_view caption, uint32_t message, intptr_t wParam, intptr_t lParam) override;
};

}  // namespace qvx::win32
