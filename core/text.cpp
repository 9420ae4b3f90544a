#include "core/text.h"

#include <algorithm>
#include <cstdint>

namespace qvx {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

// Decodes one code point at s[i]; advances i. Invalid input gives U+FFFD and one byte.
char32_t Decode(std::string_view s, size_t& i) {
  const auto b0 = static_cast<unsigned char>(s[i]);
  if (b0 < 0x80) {
    ++i;
    return b0;
  }
  size_t len = b0 >= 0xF0 ? 4 : b0 >= 0xE0 ? 3 : b0 >= 0xC0 ? 2 : 0;
  if (len == 0 || b0 > 0xF4 || i + len > s.size()) {
    ++i;
    return kReplacement;
  }
  char32_t cp = b0 & (0x7F >> len);
  for (size_t k = 1; k < len; ++k) {
    const auto b = static_cast<unsigned char>(s[i + k]);
    if ((b & 0xC0) != 0x80) {
      ++i;
      return kReplacement;
    }
    cp = (cp << 6) | (b & 0x3F);
  }
  static constexpr char32_t kMin[] = {0, 0, 0x80, 0x800, 0x10000};
  if (cp < kMin[len] || cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF)) {
    ++i;
    return kReplacement;
  }
  i += len;
  return cp;
}

void Encode(char32_t cp, std::string& out) {
  if (cp < 0x80) {
    out += static_cast<char>(cp);
  } else if (cp < 0x800) {
    out += static_cast<char>(0xC0 | (cp >> 6));
    out += static_cast<char>(0x80 | (cp & 0x3F));
  } else if (cp < 0x10000) {
    out += static_cast<char>(0xE0 | (cp >> 12));
    out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (cp & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | (cp >> 18));
    out += static_cast<char>(0x80 | ((cp >> 12) & 0x3F));
    out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (cp & 0x3F));
  }
}

char32_t ToLowerCp(char32_t c) {
  if (c >= 'A' && c <= 'Z') return c + 32;
  if (c < 0x80) return c;
  if ((c >= 0xC0 && c <= 0xDE && c != 0xD7)) return c + 32;
  if (c >= 0x100 && c <= 0x17F && c != 0x130 && c != 0x131 && c != 0x138 && c != 0x149 &&
      c != 0x17F) {
    const bool oddCased = (c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E);
    return oddCased ? (c % 2 == 1 ? c + 1 : c) : (c % 2 == 0 ? c + 1 : c);
  }
  if (c >= 0x391 && c <= 0x3A9 && c != 0x3A2) return c + 32;
  if (c >= 0x410 && c <= 0x42F) return c + 32;
  if (c >= 0x400 && c <= 0x40F) return c + 80;
  return c;
}

char32_t ToUpperCp(char32_t c) {
  if (c >= 'a' && c <= 'z') return c - 32;
  if (c < 0x80) return c;
  if (c >= 0xE0 && c <= 0xFE && c != 0xF7) return c - 32;
  if (c >= 0x100 && c <= 0x17F) {
    for (char32_t u = c - 1; u <= c; ++u) {
      if (u != c && ToLowerCp(u) == c) return u;
    }
    return c;
  }
  if (c >= 0x3B1 && c <= 0x3C9 && c != 0x3C2) return c - 32;
  if (c >= 0x430 && c <= 0x44F) return c - 32;
  if (c >= 0x450 && c <= 0x45F) return c - 80;
  return c;
}

template <class Map>
std::string MapCase(std::string_view s, Map map) {
  std::string out;
  out.reserve(s.size());
  for (size_t i = 0; i < s.size();) {
    if (static_cast<unsigned char>(s[i]) < 0x80) {
      out += static_cast<char>(map(static_cast<unsigned char>(s[i])));
      ++i;
      continue;
    }
    Encode(map(Decode(s, i)), out);
  }
  return out;
}

// Byte offset of the n-th (0-based) character.
size_t ByteOffset(std::string_view s, size_t chars) {
  size_t i = 0;
  while (chars > 0 && i < s.size()) {
    Decode(s, i);
    --chars;
  }
  return i;
}

}  // namespace

std::string_view LTrim(std::string_view s) {
  const size_t first = s.find_first_not_of(' ');
  return first == std::string_view::npos ? std::string_view{} : s.substr(first);
}

std::string_view RTrim(std::string_view s) {
  const size_t last = s.find_last_not_of(' ');
  return last == std::string_view::npos ? std::string_view{} : s.substr(0, last + 1);
}

std::string_view Trim(std::string_view s) {
  return RTrim(LTrim(s));
}

std::string UCase(std::string_view s) {
  return MapCase(s, ToUpperCp);
}
std::string LCase(std::string_view s) {
  return MapCase(s, ToLowerCp);
}
std::string FoldCase(std::string_view s) {
  return MapCase(s, ToLowerCp);
}

bool EqualsText(std::string_view a, std::string_view b) {
  if (a.size() == b.size()) {
    bool ascii = true;
    for (size_t i = 0; i < a.size(); ++i) {
      const auto ca = static_cast<unsigned char>(a[i]);
      const auto cb = static_cast<unsigned char>(b[i]);
      if (ca >= 0x80 || cb >= 0x80) {
        ascii = false;
        break;
      }
      if (ToLowerCp(ca) != ToLowerCp(cb)) return false;
    }
    if (ascii) return true;
  }
  return FoldCase(a) == FoldCase(b);
}

int CompareText(std::string_view a, std::string_view b) {
  const int c = FoldCase(a).compare(FoldCase(b));
  return c < 0 ? -1 : c > 0 ? 1 : 0;
}

size_t InStr(std::string_view haystack, std::string_view needle, size_t start) {
  if (start == 0) start = 1;
  if (start > haystack.size() + 1) return 0;
  const size_t found = haystack.find(needle, start - 1);
  return found == std::string_view::npos ? 0 : found + 1;
}

size_t InStrText(std::string_view haystack, std::string_view needle, size_t start) {
  // Folding keeps byte lengths for the cases we fold except a few; search the
  // folded haystack and map back only when lengths agree.
  const std::string h = FoldCase(haystack);
  if (h.size() != haystack.size()) {
    // Rare: fall back to a character-by-character comparison.
    for (size_t i = start == 0 ? 0 : start - 1; i <= haystack.size(); ++i) {
      for (size_t len = 0; i + len <= haystack.size(); ++len) {
        if (EqualsText(haystack.substr(i, len), needle)) return i + 1;
        if (len > needle.size() * 2 + 4) break;
      }
    }
    return 0;
  }
  return InStr(h, FoldCase(needle), start);
}

std::string Replace(std::string_view s, std::string_view find, std::string_view with) {
  if (find.empty()) return std::string(s);
  std::string out;
  out.reserve(s.size());
  size_t pos = 0;
  while (true) {
    const size_t hit = s.find(find, pos);
    if (hit == std::string_view::npos) break;
    out.append(s.substr(pos, hit - pos));
    out.append(with);
    pos = hit + find.size();
  }
  out.append(s.substr(pos));
  return out;
}

std::vector<std::string> Split(std::string_view s, std::string_view delimiter) {
  std::vector<std::string> parts;
  if (s.empty()) return parts;
  if (delimiter.empty()) {
    parts.emplace_back(s);
    return parts;
  }
  size_t pos = 0;
  while (true) {
    const size_t hit = s.find(delimiter, pos);
    if (hit == std::string_view::npos) break;
    parts.emplace_back(s.substr(pos, hit - pos));
    pos = hit + delimiter.size();
  }
  parts.emplace_back(s.substr(pos));
  return parts;
}

size_t CountOf(std::string_view s, std::string_view delimiter) {
  if (delimiter.empty()) return 0;
  if (delimiter.size() == 1)
    return static_cast<size_t>(std::count(s.begin(), s.end(), delimiter[0]));
  size_t count = 0;
  for (size_t hit = s.find(delimiter); hit != std::string_view::npos;
       hit = s.find(delimiter, hit + delimiter.size())) {
    ++count;
  }
  return count;
}

std::string Join(const std::vector<std::string>& parts, std::string_view delimiter) {
  std::string out;
  for (size_t i = 0; i < parts.size(); ++i) {
    if (i > 0) out.append(delimiter);
    out.append(parts[i]);
  }
  return out;
}

size_t Len(std::string_view s) {
  size_t count = 0;
  for (size_t i = 0; i < s.size(); ++count) Decode(s, i);
  return count;
}

std::string Left(std::string_view s, size_t count) {
  return std::string(s.substr(0, ByteOffset(s, count)));
}

std::string Right(std::string_view s, size_t count) {
  const size_t length = Len(s);
  return count >= length ? std::string(s) : std::string(s.substr(ByteOffset(s, length - count)));
}

std::string Mid(std::string_view s, size_t start, size_t count) {
  if (start == 0) start = 1;
  const size_t from = ByteOffset(s, start - 1);
  const std::string_view rest = s.substr(from);
  return count == std::string_view::npos ? std::string(rest)
                                         : std::string(rest.substr(0, ByteOffset(rest, count)));
}

std::u16string Utf8ToUtf16(std::string_view s) {
  std::u16string out;
  out.reserve(s.size());
  for (size_t i = 0; i < s.size();) {
    char32_t cp = Decode(s, i);
    if (cp >= 0x10000) {
      cp -= 0x10000;
      out += static_cast<char16_t>(0xD800 + (cp >> 10));
      out += static_cast<char16_t>(0xDC00 + (cp & 0x3FF));
    } else {
      out += static_cast<char16_t>(cp);
    }
  }
  return out;
}

std::string Utf16ToUtf8(std::u16string_view s) {
  std::string out;
  out.reserve(s.size());
  for (size_t i = 0; i < s.size(); ++i) {
    // Runs of ASCII, nearly all of a stored catalogue, copied as a block.
    size_t end = i;
    while (end < s.size() && s[end] < 0x80) ++end;
    if (end != i) {
      const size_t at = out.size();
      out.resize(at + (end - i));
      for (size_t k = i; k < end; ++k) out[at + (k - i)] = static_cast<char>(s[k]);
      i = end - 1;
      continue;
    }
    char32_t cp = s[i];
    if (cp >= 0xD800 && cp <= 0xDBFF && i + 1 < s.size() && s[i + 1] >= 0xDC00 &&
        s[i + 1] <= 0xDFFF) {
      cp = 0x10000 + ((cp - 0xD800) << 10) + (s[i + 1] - 0xDC00);
      ++i;
    } else if (cp >= 0xD800 && cp <= 0xDFFF) {
      cp = kReplacement;
    }
    Encode(cp, out);
  }
  return out;
}

std::string SanitizeUtf8(std::string_view s) {
  std::string out;
  out.reserve(s.size());
  for (size_t i = 0; i < s.size();) Encode(Decode(s, i), out);
  return out;
}

}  // namespace qvx
