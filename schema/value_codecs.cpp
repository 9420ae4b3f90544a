#include "schema/value_codecs.h"

#include "core/text.h"

namespace qvx {

std::string EncodeValue(FailureSink& s, const Variant& value) {
  return TrappedResult<std::string>(s, "Global.EncodeValue", [&](Line& line, std::string& out) {
    line = 10;
    std::string text = value.ToText();
    line = 20;
    text = Replace(text, ":", "_COLON_");
    line = 30;
    text = Replace(text, ";", "_SCOLON_");
    line = 40;
    out = Replace(text, ",", "_COMMA_");
  });
}

std::string DecodeValue(FailureSink& s, const Variant& value) {
  return TrappedResult<std::string>(s, "Global.DecodeValue", [&](Line& line, std::string& out) {
    line = 10;
    std::string text = value.ToText();
    line = 20;
    text = Replace(text, "_COLON_", ":");
    line = 30;
    text = Replace(text, "_SCOLON_", ";");
    line = 40;
    out = Replace(text, "_COMMA_", ",");
  });
}

}  // namespace qvx
