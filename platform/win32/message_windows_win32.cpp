#include "platform/win32/message_windows_win32.h"

#include "platform/win32/win32_api.h"

#include <memory>
#include <string>
#include <utility>

#include "platform/win32/com_module.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win_handles.h"

namespace qvx::win32::detail {

constexpr wchar_t kListenerClass[] = L"QVXClientListenerWindow";

// The window class's own procedure is the default one; the listener's
// behaviour comes from the subclass, as with any window that gets hooked.
bool EnsureListenerClass() noexcept {
  WNDCLASSEXW cls{};
  cls.cbSize = sizeof(cls);
  if (GetClassInfoExW(ThisModule(), kListenerClass, &cls)) return true;
  cls.cbSize = sizeof(cls);
  cls.lpfnWndProc = DefWindowProcW;
  cls.hInstance = ThisModule();
  cls.lpszClassName = kListenerClass;
  return RegisterClassExW(&cls) != 0 || GetLastError() == ERROR_CLASS_ALREADY_EXISTS;
}

class Win32ListenerWindow final : public platform::ListenerWindow {
 public:
  explicit Win32ListenerWindow(platform::WindowMessageHandler handler)
      : handler_(std::make_shared<platform::WindowMessageHandler>(std::move(handler))) {}

  // The procedure is handed back before the window goes.
  ~Win32ListenerWindow() override {
    if (hwnd_) Unhook();
  }

  bool Create(std::string_view caption) {
    if (!EnsureListenerClass()) return false;
    // Top-level (no parent), never shown.
    hwnd_.Reset(CreateWindowExW(WS_EX_TOOLWINDOW, kListenerClass, Wide(caption).c_str(),
                                WS_OVERLAPPED, 0, 0, 0, 0, nullptr, nullptr, ThisModule(),
                                nullptr));
    if (!hwnd_) return false;
    SetWindowLongPtrW(hwnd_.get(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    previous_ = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(hwnd_.get(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Procedure)));
    if (!previous_) {
      SetWindowLongPtrW(hwnd_.get(), GWLP_USERDATA, 0);
      hwnd_.Reset();
      return false;
    }
    return true;
  }

  void SetCaption(std::string_view caption) override {
    if (hwnd_) SetWindowTextW(hwnd_.get(), Wide(caption).c_str());
  }

 private:
  void Unhook() noexcept {
    if (!previous_) return;
    SetWindowLongPtrW(hwnd_.get(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(previous_));
    SetWindowLongPtrW(hwnd_.get(), GWLP_USERDATA, 0);
    previous_ = nullptr;
  }

  static LRESULT CALLBACK Procedure(HWND hwnd, UINT message, WPARAM wParam,
                                    LPARAM lParam) noexcept {
    auto* self = reinterpret_cast<Win32ListenerWindow*>(GetWindowLongPtrW(hwnd, GWLP_USERDATA));
    if (!self || !self->previous_) return DefWindowProcW(hwnd, message, wParam, lParam);
    // Taken before the handler runs: it may destroy this very listener.
    const WNDPROC previous = self->previous_;
    const std::shared_ptr<platform::WindowMessageHandler> handler = self->handler_;
    if (message == WM_NCDESTROY) {
      self->Unhook();
      return CallWindowProcW(previous, hwnd, message, wParam, lParam);
    }
    try {
      if (handler && *handler &&
          (*handler)(message, static_cast<intptr_t>(wParam), static_cast<intptr_t>(lParam))) {
        return 0;
      }
    } catch (...) {
      // Nothing may cross into the system's dispatcher.
      return 0;
    }
    return CallWindowProcW(previous, hwnd, message, wParam, lParam);
  }

  UniqueHwnd hwnd_;
  WNDPROC previous_ = nullptr;
  std::shared_ptr<platform::WindowMessageHandler> handler_;
};

}  // namespace qvx::win32::detail

namespace qvx::win32 {

uint32_t Win32MessageWindows::RegisterMessage(std::string_view name) {
  const std::string ansi = ToAnsi(name);
  return RegisterWindowMessageA(ansi.c_str());
}

std::unique_ptr<platform::ListenerWindow> Win32MessageWindows::CreateListener(
    std::string_view caption, platform::WindowMessageHandler handler) {
  auto window = std::make_unique<detail::Win32ListenerWindow>(std::move(handler));
  if (!window->Create(caption)) return nullptr;
  return window;
}

bool Win32MessageWindows::Post(std::string_view caption, uint32_t message, intptr_t wParam,
                               intptr_t lParam) {
  HWND target = FindWindowW(nullptr, Wide(caption).c_str());
  return target &&
         PostMessageW(target, message, static_cast<WPARAM>(wParam), static_cast<LPARAM>(lParam));
}

}  // namespace qvx::win32
