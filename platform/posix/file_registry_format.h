// The text form of the POSIX registry file (docs/registry-file.md).
//
//   QVX registry 1
//   key<TAB>Software\Zenbrook\QVX
//   value<TAB>Software\Zenbrook\QVX<TAB>DBChoice<TAB>1<TAB>0
//   end
//
// Parse is strict and total: any text at all gives one of four verdicts and
// never fails otherwise. Only a Valid text has contents; a Damaged one is ours
// but cut or altered, a Foreign one is not ours (and must not be overwritten).
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/ordered_dictionary.h"

namespace qvx::platform::regfile {

inline constexpr std::string_view kHeader = "QVX registry 1";

struct Value {
  uint32_t type = 1;  // REG_SZ
  // REG_SZ and REG_EXPAND_SZ: UTF-8 text; REG_DWORD: 4 bytes, little-endian;
  // any other type: the bytes as they stand.
  std::string data;
  bool operator==(const Value&) const = default;
};

// True for the types kept as text.
bool IsTextType(uint32_t type) noexcept;
// Whether `value` can be stored: valid UTF-8 text, or 4 bytes for REG_DWORD.
bool IsStorable(const Value& value);

// Keys by path (case-blind, insertion order), each with its values by name.
struct Contents {
  OrderedDictionary<OrderedDictionary<Value>> keys;

  bool HasKey(std::string_view path) const { return keys.Exists(path); }
  // Adds the key and every key above it; no-op for those present.
  void AddKey(std::string_view path);
  const Value* Find(std::string_view path, std::string_view name) const;
  // Adds the key if needed and sets the value; false if it was already so.
  bool Set(std::string_view path, std::string_view name, Value value);
};

enum class Verdict { Empty, Valid, Damaged, Foreign };

Verdict Parse(std::string_view text, Contents& out);
std::string Serialize(const Contents& contents);

}  // namespace qvx::platform::regfile
