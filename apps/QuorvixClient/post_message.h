// The companion's way back: posts the client-channel message with a value to
// the add-in's listener window, found by its caption.
#pragma once

#include <string>
#include <string_view>

namespace qvx::standin {

inline constexpr int kExitNotPosted = 4;

// The environment variable that asks QuorvixClient to post after a call.
inline constexpr const char* kPostMessageVariable = "QVX_CLIENT_POST_MESSAGE";

// Posts "ZNB_QVX_Client" with the value given as decimal text. False with
// `error` set for a value that is no 32-bit number or a window that is not there.
bool PostClientMessage(std::string_view valueText, std::string& error);

}  // namespace qvx::standin
