// Small pieces shared by the catalogue classes: array subscripts and object
// references that fail the way the runtime does.
//
//   const std::string& name = Part(fields, 0);    // Failure 9 when absent
//   cProjectClient& project = Require(entry.value);  // Failure 91 when unset
//   std::string name = Decoded(s, "a_COMMA_b");      // "a,b"
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/failure.h"
#include "core/trap.h"
#include "core/variant.h"
#include "schema/value_codecs.h"

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

// EncodeValue of a name or date text. A text without ":", ";" or "," encodes
// to itself.
inline std::string Encoded(FailureSink& s, const std::string& text) {
  if (text.find_first_of(":;,") == std::string::npos) return text;
  return EncodeValue(s, Variant(text));
}

// DecodeValue of a field. A field without "_" holds no token and decodes to
// itself, which spares the three replacements on most names and dates.
inline std::string Decoded(FailureSink& s, const std::string& field) {
  if (field.find('_') == std::string::npos) return field;
  return DecodeValue(s, Variant(field));
}

}  // namespace qvx::catalogue
