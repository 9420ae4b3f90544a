// ObjectFactory by ProgID: CLSIDFromProgID and CoCreateInstance for
// CreateObject, GetActiveObject for GetObject. The object is reached through
// its IDispatch (DispatchObject). The calling thread must have COM started,
// as the host's user interface thread has.
#pragma once

#include "platform/object_factory.h"

namespace qvx::win32 {

class Win32ObjectFactory final : public platform::ObjectFactory {
 public:
  Object CreateObject(std::string_view progId) override;
  Object GetObject(std::string_view progId) override;
};

}  // namespace qvx::win32
