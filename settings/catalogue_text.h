// Small pieces shared by the catalogue classes: array subscripts and object
// references that fail the way the runtime does.
//
//   const std::string& name = Part(fields, 0);    // Failure 9 when absent
//   cProjectClient& project = Require(entry.value);  // Failure 91 when unset
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/failure.h"

namespace qvx::catalogue {

// The line break between project lines.
inline constexpr const char* kLineBreak = "\r\n";

// parts(index), as a Split array answers it: "Subscript out of range" when
// the array is shorter (splitting the empty text gives no parts at all).
inline const std::string& Part(const std::vector<std::string>& parts, size_t index) {
  if (index >= parts.size()) throw Failure::Runtime(err::kSubscriptOutOfRange);
  return parts[index];
}

// The object behind a reference; "Object variable not set" when there is none.
template <class T>
T& Require(const std::shared_ptr<T>& object) {
  if (!object) throw Failure::Runtime(err::kObjectNotSet);
  return *object;
}

}  // namespace qvx::catalogue
