// The platform services handed to the add-in at construction. Each points at
// an implementation that outlives the add-in: win32/ in the DLL, posix/ in
// the native build, fakes in tests.
#pragma once

#include "platform/message_windows.h"
#include "platform/object_factory.h"
#include "platform/registry_api.h"
#include "platform/resources.h"
#include "platform/system_services.h"
#include "platform/user_interface.h"

namespace qvx::platform {

struct Platform {
  RegistryApi* registry = nullptr;
  ObjectFactory* objects = nullptr;
  UserInterface* ui = nullptr;
  SystemServices* system = nullptr;
  MessageWindows* windows = nullptr;
  Resources* resources = nullptr;
};

}  // namespace qvx::platform
