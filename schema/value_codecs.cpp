#include "schema/value_codecs.h"

#include <algorithm>

namespace qvx {
namespace {

// Replace(text, token, with) in place: left to right, without overlaps.
void ReplaceInPlace(std::string& text, std::string_view token, char with) {
  size_t hit = text.find(token);
  if (hit == std::string::npos) return;
  size_t read = hit;
  size_t write = hit;
  while (hit != std::string::npos) {
    write = static_cast<size_t>(std::copy(text.begin() + static_cast<std::ptrdiff_t>(read),
                                          text.begin() + static_cast<std::ptrdiff_t>(hit),
                                          text.begin() + static_cast<std::ptrdiff_t>(write)) -
                                text.begin());
    text[write++] = with;
    read = hit + token.size();
    hit = text.find(token, read);
  }
  write =
      static_cast<size_t>(std::copy(text.begin() + static_cast<std::ptrdiff_t>(read), text.end(),
                                    text.begin() + static_cast<std::ptrdiff_t>(write)) -
                          text.begin());
  text.resize(write);
}

// The length of the token that starts at `at`, or 0.
size_t TokenAt(std::string_view text, size_t at) {
  static constexpr std::string_view kTokens[] = {"_COLON_", "_SCOLON_", "_COMMA_"};
  const std::string_view rest = text.substr(at);
  for (const std::string_view token : kTokens) {
    if (rest.size() < token.size()) continue;
    size_t i = 1;  // rest[0] is the underscore
    while (i < token.size() && rest[i] == token[i]) ++i;
    if (i == token.size()) return token.size();
  }
  return 0;
}

// The character of a token, told by its third letter: "_COLON_", "_SCOLON_",
// "_COMMA_".
char TokenCharacter(char third) {
  return third == 'L' ? ':' : third == 'O' ? ';' : ',';
}

std::string DecodeInOrder(std::string_view text) {
  std::string out(text);
  ReplaceInPlace(out, "_COLON_", ':');
  ReplaceInPlace(out, "_SCOLON_", ';');
  ReplaceInPlace(out, "_COMMA_", ',');
  return out;
}

}  // namespace

void AppendEncoded(std::string& out, std::string_view text) {
  // One pass: no replacement holds a character that a later one replaces.
  for (const char c : text) {
    switch (c) {
      case ':':
        out += "_COLON_";
        break;
      case ';':
        out += "_SCOLON_";
        break;
      case ',':
        out += "_COMMA_";
        break;
      default:
        out += c;
    }
  }
}

std::string DecodeText(std::string_view text) {
  size_t hit = text.find('_');
  if (hit == std::string_view::npos) return std::string(text);
  // One pass gives what the three replacements in order give, unless two
  // tokens share an underscore ("_COMMA_COLON_"): then the order decides.
  // Decoded in place: the text only shrinks, and its block keeps its size.
  std::string out(text);
  size_t read = hit;
  size_t write = hit;
  while (hit != std::string_view::npos) {
    write = static_cast<size_t>(std::copy(text.begin() + static_cast<std::ptrdiff_t>(read),
                                          text.begin() + static_cast<std::ptrdiff_t>(hit),
                                          out.begin() + static_cast<std::ptrdiff_t>(write)) -
                                out.begin());
    const size_t length = TokenAt(text, hit);
    if (length == 0) {
      out[write++] = '_';
      read = hit + 1;
    } else {
      if (TokenAt(text, hit + length - 1) != 0) return DecodeInOrder(text);
      out[write++] = TokenCharacter(text[hit + 3]);
      read = hit + length;
    }
    hit = text.find('_', read);
  }
  write =
      static_cast<size_t>(std::copy(text.begin() + static_cast<std::ptrdiff_t>(read), text.end(),
                                    out.begin() + static_cast<std::ptrdiff_t>(write)) -
                          out.begin());
  out.resize(write);
  return out;
}

std::string EncodeValue(FailureSink& s, const Variant& value) {
  return TrappedResult<std::string>(s, "Global.EncodeValue", [&](Line& line, std::string& out) {
    line = 10;
    const std::string text = value.ToText();
    line = 20;
    AppendEncoded(out, text);
  });
}

std::string DecodeValue(FailureSink& s, const Variant& value) {
  return TrappedResult<std::string>(s, "Global.DecodeValue", [&](Line& line, std::string& out) {
    line = 10;
    const std::string text = value.ToText();
    line = 20;
    out = DecodeText(text);
  });
}

}  // namespace qvx
