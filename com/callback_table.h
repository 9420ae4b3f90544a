// The DISPIDs of the ribbon callbacks. The host resolves each callback name
// of the markup with GetIDsOfNames and then calls Invoke with the id; the
// names are the add-in's, matched ignoring case, and get ids in the order the
// host first asks for them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/win32/win32_api.h"

namespace qvx::com {

class CallbackTable {
 public:
  // Above the ids of the add-in interfaces' own members.
  static constexpr DISPID kFirstId = 1000;

  // The id of a name (entered on first use, case-blind).
  DISPID IdOf(std::string_view name);
  // The name behind an id, or nullptr.
  const std::string* NameOf(DISPID id) const noexcept;

 private:
  std::vector<std::string> names_;
};

}  // namespace qvx::com
