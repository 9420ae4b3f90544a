#include "platform/posix/socket_message_windows.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <cstring>

#include "platform/posix/unique_fd.h"

namespace qvx::platform {
namespace {

struct Packet {
  uint32_t message;
  int64_t wParam;
  int64_t lParam;
};

// The abstract socket address of a caption; false if it does not fit.
bool AddressOf(std::string_view caption, sockaddr_un& address, socklen_t& length) {
  // Tests and scenarios that run side by side each take a namespace of their own.
  const char* space = std::getenv("QVX_WINDOW_NAMESPACE");
  const std::string name = "qvx-window/" +
                           (space && *space ? std::string(space) : std::to_string(getuid())) + "/" +
                           std::string(caption);
  if (name.size() + 1 > sizeof(address.sun_path)) return false;
  std::memset(&address, 0, sizeof address);
  address.sun_family = AF_UNIX;
  std::memcpy(address.sun_path + 1, name.data(), name.size());  // leading NUL: abstract
  length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + name.size());
  return true;
}

}  // namespace

struct SocketMessageWindows::Window final : ListenerWindow {
  Window(UniqueFd fd, WindowMessageHandler handler, std::weak_ptr<std::vector<Window*>> registry)
      : fd(std::move(fd)), handler(std::move(handler)), registry(std::move(registry)) {}
  ~Window() override {
    if (auto list = registry.lock()) std::erase(*list, this);
  }
  void SetCaption(std::string_view) override {}  // the caption is the socket's name

  UniqueFd fd;
  WindowMessageHandler handler;
  std::weak_ptr<std::vector<Window*>> registry;
};

uint32_t RegisteredMessageId(std::string_view name) {
  uint32_t hash = 2166136261u;  // FNV-1a
  for (const char c : name) {
    hash ^= static_cast<unsigned char>(c);
    hash *= 16777619u;
  }
  return 0xC000u + hash % 0x3FFFu;
}

SocketMessageWindows::SocketMessageWindows() : windows_(std::make_shared<std::vector<Window*>>()) {}

SocketMessageWindows::~SocketMessageWindows() = default;

uint32_t SocketMessageWindows::RegisterMessage(std::string_view name) {
  return name.empty() ? 0 : RegisteredMessageId(name);
}

std::unique_ptr<ListenerWindow> SocketMessageWindows::CreateListener(std::string_view caption,
                                                                     WindowMessageHandler handler) {
  sockaddr_un address;
  socklen_t length = 0;
  if (!AddressOf(caption, address, length)) return nullptr;
  UniqueFd fd(socket(AF_UNIX, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
  if (!fd) return nullptr;
  if (bind(fd.get(), reinterpret_cast<const sockaddr*>(&address), length) != 0) {
    return nullptr;  // a window of that caption exists already
  }
  auto window = std::make_unique<Window>(std::move(fd), std::move(handler), windows_);
  windows_->push_back(window.get());
  return window;
}

bool SocketMessageWindows::Post(std::string_view caption, uint32_t message, intptr_t wParam,
                                intptr_t lParam) {
  sockaddr_un address;
  socklen_t length = 0;
  if (!AddressOf(caption, address, length)) return false;
  const UniqueFd fd(socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0));
  if (!fd) return false;
  const Packet packet{message, wParam, lParam};
  const ssize_t sent = sendto(fd.get(), &packet, sizeof packet, MSG_DONTWAIT,
                              reinterpret_cast<const sockaddr*>(&address), length);
  return sent == static_cast<ssize_t>(sizeof packet);
}

size_t SocketMessageWindows::DispatchPending() {
  size_t handled = 0;
  // A handler may destroy windows (a tear-down): work on a copy and re-check.
  const std::vector<Window*> snapshot = *windows_;
  for (Window* window : snapshot) {
    while (std::find(windows_->begin(), windows_->end(), window) != windows_->end()) {
      Packet packet{};
      const ssize_t got = recv(window->fd.get(), &packet, sizeof packet, MSG_DONTWAIT);
      if (got != static_cast<ssize_t>(sizeof packet)) break;
      // A message no handler takes goes nowhere: there is no previous procedure here.
      window->handler(packet.message, static_cast<intptr_t>(packet.wParam),
                      static_cast<intptr_t>(packet.lParam));
      ++handled;
    }
  }
  return handled;
}

bool SocketMessageWindows::WindowExists(std::string_view caption) {
  sockaddr_un address;
  socklen_t length = 0;
  if (!AddressOf(caption, address, length)) return false;
  const UniqueFd fd(socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0));
  return fd && connect(fd.get(), reinterpret_cast<const sockaddr*>(&address), length) == 0;
}

}  // namespace qvx::platform
