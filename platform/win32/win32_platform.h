// The Windows platform in one piece: owns the services and hands them to the
// add-in as a platform::Platform. It must outlive the add-in built on it. The
// resources are those of the module that holds this code (the DLL).
//
//   auto services = std::make_unique<qvx::win32::Win32Platform>();
//   qvx::QVXClientAddin addin(services->Get());
#pragma once

#include "platform/platform.h"
#include "platform/win32/com_module.h"
#include "platform/win32/message_windows_win32.h"
#include "platform/win32/object_factory_win32.h"
#include "platform/win32/registry_win32.h"
#include "platform/win32/resources_win32.h"
#include "platform/win32/system_services_win32.h"
#include "platform/win32/user_interface_win32.h"

namespace qvx::win32 {

class Win32Platform {
 public:
  platform::Platform Get() noexcept {
    return platform::Platform{&registry_, &objects_, &ui_, &system_, &windows_, &resources_};
  }

 private:
  Win32RegistryApi registry_;
  Win32ObjectFactory objects_;
  Win32UserInterface ui_;
  Win32SystemServices system_;
  Win32MessageWindows windows_;
  Win32Resources resources_{ThisModule()};
};

}  // namespace qvx::win32
