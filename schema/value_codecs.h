// The escaping of names inside the catalogue strings (project and activity
// lists, keyed lists). The catalogue uses ":", ";" and "," as separators, so a
// name carries them as tokens.
//
//   EncodeValue(s, "a:b;c,d") == "a_COLON_b_SCOLON_c_COMMA_d"
//   DecodeValue(s, "a_COLON_b_SCOLON_c_COMMA_d") == "a:b;c,d"
//
// The tokens themselves are not escaped: a name that already holds "_COMMA_"
// decodes with a comma. Blanks are left alone ("_SPACE_" belongs to the
// statistics command line only). Values on items are never encoded.
#pragma once

#include <string>
#include <string_view>

#include "core/trap.h"
#include "core/variant.h"

namespace qvx {

// Converts the value to text, then replaces ":", ";", "," in that order.
// A failure (a value with no text form) is reported under
// "Global.EncodeValue" and gives "".
std::string EncodeValue(FailureSink& s, const Variant& value);

// Replaces "_COLON_", "_SCOLON_", "_COMMA_" in that order. Reported under
// "Global.DecodeValue"; gives "" on a failure.
std::string DecodeValue(FailureSink& s, const Variant& value);

// The same replacements on text that is text already, without a Variant or
// a trap: AppendEncoded appends the encoded text to `out`.
void AppendEncoded(std::string& out, std::string_view text);
std::string DecodeText(std::string_view text);

}  // namespace qvx
