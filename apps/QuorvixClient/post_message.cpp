#include "apps/QuorvixClient/post_message.h"

#include <charconv>
#include <cstdint>

#include "companion/message_names.h"
#include "platform/posix/socket_message_windows.h"

namespace qvx::standin {

bool PostClientMessage(std::string_view valueText, std::string& error) {
  int32_t value = 0;
  const auto [end, rc] =
      std::from_chars(valueText.data(), valueText.data() + valueText.size(), value);
  if (rc != std::errc() || end != valueText.data() + valueText.size()) {
    error = std::string(kPostMessageVariable) + " must be a 32-bit number, not \"" +
            std::string(valueText) + "\"";
    return false;
  }
  platform::SocketMessageWindows windows;
  const uint32_t message = windows.RegisterMessage(companion::kClientMessageName);
  if (!windows.Post(companion::kClientWindowCaption, message, value, 0)) {
    error = "no window \"" + std::string(companion::kClientWindowCaption) + "\" to post to";
    return false;
  }
  return true;
}

}  // namespace qvx::standin
