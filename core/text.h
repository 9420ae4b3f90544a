// Text rules of the legacy runtime, on UTF-8 strings.
//
// Trim removes blanks (U+0020) only. "Text compare" is case-blind; "binary"
// is ordinal. Positions are 1-based character positions, 0 meaning "not
// found", as InStr gives them. Split and Join keep the runtime's edge cases:
// splitting the empty text gives no parts at all.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace qvx {

std::string_view Trim(std::string_view s);
std::string_view LTrim(std::string_view s);
std::string_view RTrim(std::string_view s);

std::string UCase(std::string_view s);
std::string LCase(std::string_view s);
// A case-folded form: two texts are equal by text compare iff their folds are.
std::string FoldCase(std::string_view s);
bool EqualsText(std::string_view a, std::string_view b);
// StrComp with text compare: -1, 0 or 1.
int CompareText(std::string_view a, std::string_view b);

// InStr: 1-based byte position of needle in haystack from `start` (1-based), 0 if absent.
size_t InStr(std::string_view haystack, std::string_view needle, size_t start = 1);
size_t InStrText(std::string_view haystack, std::string_view needle, size_t start = 1);
std::string Replace(std::string_view s, std::string_view find, std::string_view with);

// Split on an ordinal delimiter. "" gives no parts; an empty delimiter gives the whole text.
std::vector<std::string> Split(std::string_view s, std::string_view delimiter);
std::string Join(const std::vector<std::string>& parts, std::string_view delimiter);

// The parts of Split as views into the text, one at a time, with the same
// edge cases and no copies:
//
//   PartWalker lines(text, "\r\n");
//   for (std::string_view line; lines.Next(line);) Use(line);
class PartWalker {
 public:
  PartWalker(std::string_view s, std::string_view delimiter)
      : rest_(s), delimiter_(delimiter), done_(s.empty()) {}
  bool Next(std::string_view& part) {
    if (done_) return false;
    const size_t hit = delimiter_.empty() ? std::string_view::npos : rest_.find(delimiter_);
    if (hit == std::string_view::npos) {
      part = rest_;
      done_ = true;
    } else {
      part = rest_.substr(0, hit);
      rest_.remove_prefix(hit + delimiter_.size());
    }
    return true;
  }

 private:
  std::string_view rest_;
  std::string_view delimiter_;
  bool done_;
};

// Split's first parts as views: fills out[0..n) and returns n, at most N.
template <size_t N>
size_t FirstParts(std::string_view s, std::string_view delimiter, std::string_view (&out)[N]) {
  PartWalker parts(s, delimiter);
  size_t n = 0;
  while (n < N && parts.Next(out[n])) ++n;
  return n;
}

// How often the delimiter occurs, without overlaps.
size_t CountOf(std::string_view s, std::string_view delimiter);

// Character-based (code point) Len, Left, Mid, Right.
size_t Len(std::string_view s);
std::string Left(std::string_view s, size_t count);
std::string Right(std::string_view s, size_t count);
std::string Mid(std::string_view s, size_t start, size_t count = std::string_view::npos);

// UTF-8 <-> UTF-16. Invalid sequences become U+FFFD; nothing throws.
std::u16string Utf8ToUtf16(std::string_view s);
std::string Utf16ToUtf8(std::u16string_view s);
// Replaces invalid UTF-8 with U+FFFD.
std::string SanitizeUtf8(std::string_view s);

}  // namespace qvx
