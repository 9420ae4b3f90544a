#include "harness/ui_watcher.h"

#include <algorithm>
#include <utility>

namespace qvx::winetest {
namespace {

std::wstring ClassOf(HWND hwnd) {
  wchar_t name[64] = {};
  GetClassNameW(hwnd, name, static_cast<int>(std::size(name)));
  return name;
}

// WM_GETTEXT across threads, without waiting forever on a busy window.
std::wstring TextOf(HWND hwnd) {
  DWORD_PTR length = 0;
  if (!SendMessageTimeoutW(hwnd, WM_GETTEXTLENGTH, 0, 0, SMTO_ABORTIFHUNG, 2000, &length)) {
    return {};
  }
  std::wstring text(static_cast<size_t>(length) + 1, L'\0');
  DWORD_PTR got = 0;
  if (!SendMessageTimeoutW(hwnd, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()),
                           SMTO_ABORTIFHUNG, 2000, &got)) {
    return {};
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
  if (_wcsicmp(cls.c_str(), L"Static") == 0) {
    if (std::wstring text = TextOf(child); !text.empty()) children->dialog->labels.push_back(text);
  } else if (_wcsicmp(cls.c_str(), L"Edit") == 0) {
    children->dialog->edits.push_back(TextOf(child));
  } else if (_wcsicmp(cls.c_str(), L"Button") == 0) {
    // Message boxes use the standard ids (IDOK ... IDCONTINUE); forms use their own.
    const int id = GetDlgCtrlID(child);
    if (id >= IDOK && id <= IDCONTINUE && !children->firstStandardButton) {
      children->firstStandardButton = child;
    }
  }
  return TRUE;
}

struct TopLevel {
  DWORD process;
  std::vector<HWND> dialogs;
};

BOOL CALLBACK CollectTopLevel(HWND hwnd, LPARAM data) {
  auto* top = reinterpret_cast<TopLevel*>(data);
  DWORD process = 0;
  GetWindowThreadProcessId(hwnd, &process);
  if (process == top->process && IsWindowVisible(hwnd) && ClassOf(hwnd) == L"#32770") {
    top->dialogs.push_back(hwnd);
  }
  return TRUE;
}

}  // namespace

bool SeenDialog::Shows(const std::wstring& text) const {
  const auto has = [&](const std::wstring& s) { return s.find(text) != std::wstring::npos; };
  return std::any_of(labels.begin(), labels.end(), has) ||
         std::any_of(edits.begin(), edits.end(), has);
}

UiWatcher& Watcher() {
  static UiWatcher watcher;
  return watcher;
}

UiWatcher::UiWatcher() : thread_([this] { Run(); }) {}

UiWatcher::~UiWatcher() {
  stop_ = true;
  if (thread_.joinable()) thread_.join();
}

std::vector<SeenDialog> UiWatcher::Take() {
  std::lock_guard<std::mutex> lock(mutex_);
  return std::exchange(seen_, {});
}

void UiWatcher::Run() {
  while (!stop_) {
    Scan();
    Sleep(30);
  }
}

void UiWatcher::Scan() {
  TopLevel top{process_, {}};
  EnumWindows(CollectTopLevel, reinterpret_cast<LPARAM>(&top));
  // Forget windows that are gone, so that a reused handle counts as new.
  std::erase_if(handled_, [](HWND h) { return !IsWindow(h); });
  for (HWND hwnd : top.dialogs) {
    if (std::find(handled_.begin(), handled_.end(), hwnd) != handled_.end()) continue;
    handled_.push_back(hwnd);
    SeenDialog dialog;
    dialog.caption = TextOf(hwnd);
    Children children{&dialog};
    EnumChildWindows(hwnd, CollectChild, reinterpret_cast<LPARAM>(&children));
    dialog.messageBox = children.firstStandardButton != nullptr;
    {
      std::lock_guard<std::mutex> lock(mutex_);
      seen_.push_back(dialog);
    }
    if (children.firstStandardButton) {
      PostMessageW(hwnd, WM_COMMAND,
                   MAKEWPARAM(GetDlgCtrlID(children.firstStandardButton), BN_CLICKED),
                   reinterpret_cast<LPARAM>(children.firstStandardButton));
    } else {
      PostMessageW(hwnd, WM_CLOSE, 0, 0);
    }
  }
}

}  // namespace qvx::winetest
