// SocketMessageWindows: listener windows on POSIX.
//
// A window is a local datagram socket in the abstract namespace, named after
// its caption and the user ("qvx-window/<uid>/<caption>"; $QVX_WINDOW_NAMESPACE
// stands in for the uid where set), so that another
// process of the same user finds it by caption alone, as FindWindow would.
// A registered message name maps to an id from 0xC000 up by a fixed hash of
// the name, so every process agrees on it without a shared table.
// Messages wait in the socket until the owner lets them through with
// DispatchPending (the native DoEvents and the simulator's pump call it).
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/message_windows.h"

namespace qvx::platform {

class SocketMessageWindows : public MessageWindows {
 public:
  SocketMessageWindows();
  ~SocketMessageWindows() override;

  uint32_t RegisterMessage(std::string_view name) override;
  std::unique_ptr<ListenerWindow> CreateListener(std::string_view caption,
                                                 WindowMessageHandler handler) override;
  bool Post(std::string_view caption, uint32_t message, intptr_t wParam, intptr_t lParam) override;

  // Hands every waiting message to its window's handler; returns how many.
  size_t DispatchPending();
  // Whether a window with this caption exists (in any process of the user).
  static bool WindowExists(std::string_view caption);

  struct Window;

 private:
  std::shared_ptr<std::vector<Window*>> windows_;
};

// The id a registered message name maps to.
uint32_t RegisteredMessageId(std::string_view name);

}  // namespace qvx::platform
