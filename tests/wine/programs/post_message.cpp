// qvx_post_message.exe NAME VALUE [SETTING=TEXT ...]: does what the companion
// does to reach the add-in. It first writes each SETTING as text under
// HKEY_CURRENT_USER\Software\Zenbrook\QVX with the registry API, as the
// companion writes the settings it changed; then finds the listener window
// by its caption with FindWindowA, registers NAME with RegisterWindowMessageA
// and posts it with VALUE in wParam (lParam 0).
//
// Exit codes: 0 posted, 1 no window with the caption, 2 usage, 3 post
// failed, 4 a setting could not be written.
#include <windows.h>

#include <cstdlib>
#include <cstring>
#include <string>

namespace {

bool WriteSetting(const char* assignment) {
  const char* equals = std::strchr(assignment, '=');
  if (!equals || equals == assignment) return false;
  const std::string name(assignment, equals);
  const std::string text(equals + 1);
  return RegSetKeyValueA(HKEY_CURRENT_USER, "Software\\Zenbrook\\QVX", name.c_str(), REG_SZ,
                         text.c_str(), static_cast<DWORD>(text.size() + 1)) == ERROR_SUCCESS;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3 || argv[1][0] == '\0') return 2;
  char* end = nullptr;
  const long value = std::strtol(argv[2], &end, 10);
  if (end == argv[2] || *end != '\0') return 2;
  for (int i = 3; i < argc; ++i) {
    if (!WriteSetting(argv[i])) return 4;
  }
  HWND target = FindWindowA(nullptr, "Client Window - Quorvix Client for Outlook");
  if (!target) return 1;
  const UINT message = RegisterWindowMessageA(argv[1]);
  if (message == 0) return 3;
  return PostMessageA(target, message, static_cast<WPARAM>(value), 0) ? 0 : 3;
}
