// The COM module's own counters: live objects this module hands out (the
// add-in object, class factories, event sinks, dispatch faces) and server
// locks. DllCanUnloadNow answers from them. These belong to the loaded module
// itself, not to any add-in instance, so they live with the module.
#pragma once

#include "platform/win32/win32_api.h"

namespace qvx::win32 {

void ModuleObjectCreated() noexcept;
void ModuleObjectDestroyed() noexcept;
void ModuleLock(bool lock) noexcept;
// True when no object is alive and no lock is held.
bool ModuleCanUnload() noexcept;
long ModuleObjectCount() noexcept;
// The module (DLL or executable) that holds this code.
HMODULE ThisModule() noexcept;

// A base for COM objects of this module: counts itself while alive.
class ModuleCounted {
 public:
  ModuleCounted() noexcept { ModuleObjectCreated(); }
  ModuleCounted(const ModuleCounted&) = delete;
  ModuleCounted& operator=(const ModuleCounted&) = delete;
  ~ModuleCounted() { ModuleObjectDestroyed(); }
};

}  // namespace qvx::win32
