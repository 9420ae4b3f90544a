#include "platform/posix/file_registry_format.h"

#include <vector>

#include "core/text.h"

namespace qvx::platform::regfile {
namespace {

constexpr uint32_t kRegSz = 1;
constexpr uint32_t kRegExpandSz = 2;
constexpr uint32_t kRegDword = 4;
constexpr char kHex[] = "0123456789abcdef";

int HexDigit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

bool IsValidUtf8(std::string_view s) {
  return SanitizeUtf8(s) == s;
}

// Control bytes, DEL and "%" are written as "%hh"; everything else as is.
void AppendEscaped(std::string& out, std::string_view s) {
  for (const char c : s) {
    const auto b = static_cast<unsigned char>(c);
    if (b < 0x20 || b == 0x7F || c == '%') {
      out += '%';
      out += kHex[b >> 4];
      out += kHex[b & 0xF];
    } else {
      out += c;
    }
  }
}

bool Unescape(std::string_view s, std::string& out) {
  out.clear();
  for (size_t i = 0; i < s.size(); ++i) {
    const auto b = static_cast<unsigned char>(s[i]);
    if (b < 0x20 || b == 0x7F) return false;  // raw control bytes are never written
    if (s[i] != '%') {
      out += s[i];
      continue;
    }
    if (i + 2 >= s.size()) return false;
    const int hi = HexDigit(s[i + 1]);
    const int lo = HexDigit(s[i + 2]);
    if (hi < 0 || lo < 0) return false;
    out += static_cast<char>(hi * 16 + lo);
    i += 2;
  }
  return IsValidUtf8(out);
}

bool ParseUint32(std::string_view s, uint32_t& out) {
  if (s.empty() || s.size() > 10) return false;
  uint64_t value = 0;
  for (const char c : s) {
    if (c < '0' || c > '9') return false;
    value = value * 10 + static_cast<uint64_t>(c - '0');
  }
  if (value > 0xFFFFFFFFu) return false;
  out = static_cast<uint32_t>(value);
  return true;
}

bool ParseData(uint32_t type, std::string_view field, std::string& out) {
  if (IsTextType(type)) return Unescape(field, out);
  out.clear();
  if (type == kRegDword) {
    uint32_t v = 0;
    if (!ParseUint32(field, v)) return false;
    for (int i = 0; i < 4; ++i) out += static_cast<char>((v >> (8 * i)) & 0xFF);
    return true;
  }
  if (field.size() % 2 != 0) return false;
  for (size_t i = 0; i < field.size(); i += 2) {
    const int hi = HexDigit(field[i]);
    const int lo = HexDigit(field[i + 1]);
    if (hi < 0 || lo < 0) return false;
    out += static_cast<char>(hi * 16 + lo);
  }
  return true;
}

void AppendData(std::string& out, const Value& value) {
  if (IsTextType(value.type)) {
    AppendEscaped(out, value.data);
  } else if (value.type == kRegDword && value.data.size() == 4) {
    uint32_t v = 0;
    for (int i = 3; i >= 0; --i) v = (v << 8) | static_cast<unsigned char>(value.data[i]);
    out += std::to_string(v);
  } else {
    for (const char c : value.data) {
      const auto b = static_cast<unsigned char>(c);
      out += kHex[b >> 4];
      out += kHex[b & 0xF];
    }
  }
}

std::vector<std::string_view> Fields(std::string_view line) {
  std::vector<std::string_view> fields;
  size_t start = 0;
  while (true) {
    const size_t tab = line.find('\t', start);
    if (tab == std::string_view::npos) {
      fields.push_back(line.substr(start));
      return fields;
    }
    fields.push_back(line.substr(start, tab - start));
    start = tab + 1;
  }
}

// One record line; false if it is not one this format writes.
bool ParseRecord(std::string_view line, Contents& out) {
  const std::vector<std::string_view> f = Fields(line);
  std::string path;
  if (f.size() == 2 && f[0] == "key") {
    if (!Unescape(f[1], path) || path.empty()) return false;
    out.AddKey(path);
    return true;
  }
  if (f.size() != 5 || f[0] != "value") return false;
  std::string name;
  Value value;
  if (!Unescape(f[1], path) || path.empty() || !Unescape(f[2], name) ||
      !ParseUint32(f[3], value.type) || !ParseData(value.type, f[4], value.data)) {
    return false;
  }
  out.Set(path, name, std::move(value));
  return true;
}

}  // namespace

bool IsTextType(uint32_t type) noexcept {
  return type == kRegSz || type == kRegExpandSz;
}

bool IsStorable(const Value& value) {
  if (IsTextType(value.type)) return IsValidUtf8(value.data);
  if (value.type == kRegDword) return value.data.size() == 4;
  return true;
}

void Contents::AddKey(std::string_view path) {
  // A key's ancestors are always there before it, so the walk up stops at the
  // first key that is: a file of deep paths reads in time of its size, not of
  // the square of its depth.
  std::vector<size_t> missing;  // lengths of the absent prefixes, deepest first
  for (size_t length = path.size(); length > 0 && !keys.Exists(path.substr(0, length));) {
    missing.push_back(length);
    const size_t at = path.rfind('\\', length - 1);
    if (at == std::string_view::npos) break;
    length = at;
  }
  for (auto it = missing.rbegin(); it != missing.rend(); ++it) keys.Add(path.substr(0, *it), {});
}

const Value* Contents::Find(std::string_view path, std::string_view name) const {
  const OrderedDictionary<Value>* values = keys.Find(path);
  return values == nullptr ? nullptr : values->Find(name);
}

bool Contents::Set(std::string_view path, std::string_view name, Value value) {
  AddKey(path);
  OrderedDictionary<Value>& values = *keys.Find(path);
  if (const Value* existing = values.Find(name); existing != nullptr && *existing == value) {
    return false;
  }
  values.Set(name, std::move(value));
  return true;
}

Verdict Parse(std::string_view text, Contents& out) {
  out = Contents{};
  if (text.empty()) return Verdict::Empty;
  constexpr std::string_view kFamily = "QVX registry";
  if (kHeader.substr(0, text.size()) == text) return Verdict::Damaged;  // cut in the header
  if (text.substr(0, kFamily.size()) != kFamily) return Verdict::Foreign;
  const size_t headerEnd = text.find('\n');
  if (headerEnd == std::string_view::npos) return Verdict::Damaged;
  if (text.substr(0, headerEnd) != kHeader) {
    // Another version of this format: not ours to read or to replace.
    return text[kFamily.size()] == ' ' ? Verdict::Foreign : Verdict::Damaged;
  }
  size_t pos = headerEnd + 1;
  while (pos < text.size()) {
    const size_t end = text.find('\n', pos);
    if (end == std::string_view::npos) break;  // a last line cut short
    const std::string_view line = text.substr(pos, end - pos);
    pos = end + 1;
    if (line == "end") {
      if (pos != text.size()) break;  // something after the end
      return Verdict::Valid;
    }
    if (!ParseRecord(line, out)) break;
  }
  out = Contents{};
  return Verdict::Damaged;
}

std::string Serialize(const Contents& contents) {
  std::string out(kHeader);
  out += '\n';
  for (const auto& key : contents.keys) {
    out += "key\t";
    AppendEscaped(out, key.key);
    out += '\n';
  }
  for (const auto& key : contents.keys) {
    for (const auto& value : key.value) {
      out += "value\t";
      AppendEscaped(out, key.key);
      out += '\t';
      AppendEscaped(out, value.key);
      out += '\t';
      out += std::to_string(value.value.type);
      out += '\t';
      AppendData(out, value.value);
      out += '\n';
    }
  }
  out += "end\n";
  return out;
}

}  // namespace qvx::platform::regfile
