// Creation of late-bound objects by ProgID ("Wscript.Shell",
// "Scripting.FileSystemObject", "ZNBLib.ZNBMAPIUtils", ...): CoCreateInstance
// on Windows, native stand-ins on POSIX. A ProgID that cannot be created
// throws Failure 429.
#pragma once

#include <string_view>

#include "core/object.h"

namespace qvx::platform {

inline constexpr int32_t kCannotCreateObject = 429;  // "ActiveX component can't create object"

class ObjectFactory {
 public:
  virtual ~ObjectFactory() = default;
  // CreateObject(ProgID).
  virtual Object CreateObject(std::string_view progId) = 0;
  // GetObject(, ProgID): attach to a running instance.
  virtual Object GetObject(std::string_view progId) = 0;
};

}  // namespace qvx::platform
