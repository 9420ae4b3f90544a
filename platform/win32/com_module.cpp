#include "platform/win32/com_module.h"

namespace qvx::win32 {
namespace {

struct Counters {
  LONG objects = 0;
  LONG locks = 0;
};

Counters& Module() noexcept {
  static Counters counters;
  return counters;
}

}  // namespace

void ModuleObjectCreated() noexcept {
  InterlockedIncrement(&Module().objects);
}
void ModuleObjectDestroyed() noexcept {
  InterlockedDecrement(&Module().objects);
}

void ModuleLock(bool lock) noexcept {
  if (lock) {
    InterlockedIncrement(&Module().locks);
  } else {
    InterlockedDecrement(&Module().locks);
  }
}

bool ModuleCanUnload() noexcept {
  return InterlockedCompareExchange(&Module().objects, 0, 0) == 0 &&
         InterlockedCompareExchange(&Module().locks, 0, 0) == 0;
}

long ModuleObjectCount() noexcept {
  return InterlockedCompareExchange(&Module().objects, 0, 0);
}

HMODULE ThisModule() noexcept {
  HMODULE module = nullptr;
  GetModuleHandleExW(
      GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
      reinterpret_cast<LPCWSTR>(&ThisModule), &module);
  return module;
}

}  // namespace qvx::win32
