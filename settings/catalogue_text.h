// Small pieces shared by the catalogue classes: array subscripts and object
// references that fail the way the runtime does.
//
//   std::string_view fields[4];
//   const size_t n = FirstParts(record, ",", fields);
//   std::string_view name = Part(fields, n, 0);      // Failure 9 when absent
//   cProjectClient& project = Require(entry.value);  // Failure 91 when unset
#pragma once

#include <memory>
#include <string_view>

#include "core/failure.h"

namespace qvx::catalogue {

// The line break between project lines.
inline constexpr std::string_view kLineBreak = "\r\n";

// parts(index) of the first `count` parts of a Split, as the array answers
// it: "Subscript out of range" when it is shorter (splitting the empty text
// gives no parts at all).
inline std::string_view Part(const std::string_view* parts, size_t count, size_t index) {
  if (index >= count) throw Failure::Runtime(err::kSubscriptOutOfRange);
  return parts[index];
}

// The object behind a reference; "Object variable not set" when there is none.
template <class T>
T& Require(const std::shared_ptr<T>& object) {
  if (!object) throw Failure::Runtime(err::kObjectNotSet);
  return *object;
}

}  // namespace qvx::catalogue
