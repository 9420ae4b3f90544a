// qvx_post_message.exe NAME VALUE: does what the companion does to reach the
// add-in. It finds the listener window by its caption with FindWindowA,
// registers NAME with RegisterWindowMessageA and posts it with VALUE in
// wParam (lParam 0).
//
// Exit codes: 0 posted, 1 no window with the caption, 2 usage, 3 post failed.
#include <windows.h>

#include <cstdlib>

int main(int argc, char** argv) {
  if (argc != 3 || argv[1][0] == '\0') return 2;
  char* end = nullptr;
  const long value = std::strtol(argv[2], &end, 10);
  if (end == argv[2] || *end != '\0') return 2;
  HWND target = FindWindowA(nullptr, "Client Window - Quorvix Client for Outlook");
  if (!target) return 1;
  const UINT message = RegisterWindowMessageA(argv[1]);
  if (message == 0) return 3;
  return PostMessageA(target, message, static_cast<WPARAM>(value), 0) ? 0 : 3;
}
