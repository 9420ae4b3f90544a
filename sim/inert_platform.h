// Platform services that do nothing, for the test add-in (sim/test_addin.h)
// where a service must be there but must not reach the machine.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "platform/message_windows.h"

namespace qvx::sim {

// Listener windows that hear nothing, and posts that find no window: an
// add-in state whose message channel is never live.
class InertWindows final : public platform::MessageWindows {
 public:
  uint32_t RegisterMessage(std::string_view) override { return 0xC000; }
  std::unique_ptr<platform::ListenerWindow> CreateListener(
      std::string_view, platform::WindowMessageHandler) override {
    return std::make_unique<Listener>();
  }
  bool Post(std::string_view, uint32_t, intptr_t, intptr_t) override { return false; }

 private:
  struct Listener final : platform::ListenerWindow {
    void SetCaption(std::string_view) override {}
  };
};

}  // namespace qvx::sim
