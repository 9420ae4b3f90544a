#include "harness/ui_watcher.h"

#include <algorithm>
#include <atomic>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

namespace qvx::winetest {
namespace {

std::wstring ClassOf(HWND hwnd) {
  wchar_t name[64] = {};
  GetClassNameW(hwnd, name, static_cast<int>(std::size(name)));
  return name;
}

// WM_GETTEXT across threads, without waiting forever on a busy window;
// nullopt when the window did not answer in time.
std::optional<std::wstring> TextIfAnswered(HWND hwnd) {
  DWORD_PTR length = 0;
  if (!SendMessageTimeoutW(hwnd, WM_GETTEXTLENGTH, 0, 0, SMTO_ABORTIFHUNG, 2000, &length)) {
    return std::nullopt;
  }
  std::wstring text(static_cast<size_t>(length) + 1, L'\0');
  DWORD_PTR got = 0;
  if (!SendMessageTimeoutW(hwnd, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()),
                           SMTO_ABORTIFHUNG, 2000, &got)) {
    return std::nullopt;
  }
  text.resize(static_cast<size_t>(got));
  return text;
}

struct Children {
  SeenDialog* dialog;
  HWND firstStandardButton = nullptr;
};

BOOL CALLBACK CollectChild(HWND child, LPARAM data) {
  auto* children = reinterpret_cast<Children*>(data);
  const std::wstring cls = ClassOf(child);
  const bool bitmap = (GetWindowLongW(child, GWL_STYLE) & SS_TYPEMASK) == SS_BITMAP;
  if (_wcsicmp(cls.c_str(), L"Static") == 0 && bitmap) {
    DWORD_PTR image = 0;
    SendMessageTimeoutW(child, STM_GETIMAGE, IMAGE_BITMAP, 0, SMTO_ABORTIFHUNG, 2000, &image);
    if (image != 0) ++children->dialog->pictures;
  } else if (_wcsicmp(cls.c_str(), L"Static") == 0 || _wcsicmp(cls.c_str(), L"Edit") == 0) {
    children->dialog->texts.push_back(TextIfAnswered(child).value_or(std::wstring()));
  } else if (_wcsicmp(cls.c_str(), L"Button") == 0 && !children->firstStandardButton) {
    // Message boxes use the standard ids (IDOK ... IDCONTINUE); forms use their own.
    const int id = GetDlgCtrlID(child);
    if (id >= IDOK && id <= IDCONTINUE) children->firstStandardButton = child;
  }
  return TRUE;
}

BOOL CALLBACK CollectDialog(HWND hwnd, LPARAM data) {
  DWORD process = 0;
  GetWindowThreadProcessId(hwnd, &process);
  if (process == GetCurrentProcessId() && IsWindowVisible(hwnd) && ClassOf(hwnd) == L"#32770") {
    reinterpret_cast<std::vector<HWND>*>(data)->push_back(hwnd);
  }
  return TRUE;
}

// The watcher's thread and what it has seen, for the life of the program.
struct WatcherState {
  std::atomic<bool> stop{false};
  std::mutex mutex;
  std::vector<SeenDialog> seen;
  std::vector<HWND> handled;
  std::thread thread{[this] {
    for (; !stop; Sleep(30)) Scan();
  }};
  ~WatcherState() {
    stop = true;
    thread.join();
  }
  void Scan();
};

WatcherState& State() {
  static WatcherState state;
  return state;
}

void WatcherState::Scan() {
  std::vector<HWND> dialogs;
  EnumWindows(CollectDialog, reinterpret_cast<LPARAM>(&dialogs));
  // Forget windows that are gone, so that a reused handle counts as new.
  std::erase_if(handled, [](HWND h) { return !IsWindow(h); });
  for (HWND hwnd : dialogs) {
    if (std::find(handled.begin(), handled.end(), hwnd) != handled.end()) continue;
    // A dialog whose thread is busy is looked at again at the next scan.
    const std::optional<std::wstring> caption = TextIfAnswered(hwnd);
    if (!caption) continue;
    SeenDialog dialog;
    dialog.caption = *caption;
    handled.push_back(hwnd);
    Children children{&dialog};
    EnumChildWindows(hwnd, CollectChild, reinterpret_cast<LPARAM>(&children));
    dialog.messageBox = children.firstStandardButton != nullptr;
    {
      std::lock_guard<std::mutex> lock(mutex);
      seen.push_back(dialog);
    }
    if (HWND button = children.firstStandardButton) {
      PostMessageW(hwnd, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(button), BN_CLICKED),
                   reinterpret_cast<LPARAM>(button));
    } else {
      PostMessageW(hwnd, WM_CLOSE, 0, 0);
    }
  }
}

}  // namespace

bool SeenDialog::Shows(const std::wstring& part) const {
  return std::any_of(texts.begin(), texts.end(),
                     [&](const std::wstring& s) { return s.find(part) != std::wstring::npos; });
}

UiWatcher& Watcher() {
  State();
  static UiWatcher watcher;
  return watcher;
}

std::vector<SeenDialog> UiWatcher::Take() {
  std::lock_guard<std::mutex> lock(State().mutex);
  return std::exchange(State().seen, {});
}

}  // namespace qvx::winetest
