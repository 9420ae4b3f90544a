// OrderedDictionary: unique text keys compared without regard to case,
// enumerated in insertion order (Scripting.Dictionary with text compare).
//
// The entries sit in one vector; an open-addressed table of positions finds
// them by the hash of the case-folded key, so a lookup copies nothing and the
// index costs eight bytes a slot.
//
//   OrderedDictionary<int> d;
//   d.Add("Alpha", 1);
//   d.Exists("ALPHA");   // true
//   d.Add("alpha", 2);   // Failure 457
//   d.TryAdd("alpha", 2) == false   // the first of a key stays
//
// A value that carries its own key names it through KeyOf, a functor giving
// the value's key as a string: the entry's `key` then refers to that string
// instead of holding a copy, so a value that is added must carry the key it
// is added under, and the values can only be read.
//
//   struct NameOf { const std::string& operator()(const Person& p) const { return p.name; } };
//   OrderedDictionary<Person, NameOf> people;
//   people.Add(person.name, person);
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "core/failure.h"
#include "core/text.h"

namespace qvx {

namespace dictionary_detail {

// Lower-cases the ASCII letters of eight bytes that are all below 0x80.
inline uint64_t FoldAsciiWord(uint64_t word) {
  constexpr uint64_t kHigh = 0x8080808080808080ull;
  const uint64_t atLeastA = word + 0x3F3F3F3F3F3F3F3Full;  // bit 7 set from 'A'
  const uint64_t beyondZ = word + 0x2525252525252525ull;   // bit 7 set after 'Z'
  return word | ((atLeastA & ~beyondZ & kHigh) >> 2);
}

// Mixes the bytes eight at a time; `fold` lower-cases ASCII letters first.
// Sets `high` when a byte is 0x80 or above (folding then needs FoldCase).
inline uint64_t MixWords(std::string_view bytes, bool fold, bool& high) {
  uint64_t hash = 0x9E3779B97F4A7C15ull ^ bytes.size();
  uint64_t seen = 0;
  for (size_t at = 0; at < bytes.size(); at += 8) {
    uint64_t word = 0;
    std::memcpy(&word, bytes.data() + at, std::min<size_t>(8, bytes.size() - at));
    seen |= word;
    if (fold) word = FoldAsciiWord(word);
    hash = (hash ^ word) * 0xFF51AFD7ED558CCDull;
    hash ^= hash >> 29;
  }
  high = (seen & 0x8080808080808080ull) != 0;
  return hash;
}

// The hash of the case-folded key; ASCII keys are folded in place.
inline uint32_t FoldedHash(std::string_view key) {
  bool high = false;
  uint64_t hash = MixWords(key, true, high);
  if (high) hash = MixWords(FoldCase(key), false, high);
  return static_cast<uint32_t>(hash ^ (hash >> 32));
}

// An entry that holds its key beside its value.
template <class Value>
struct KeptKeyEntry {
  std::string key;
  Value value;
};

// An entry whose key is in its value: `key` follows the value when the entry
// is copied or moved.
template <class Value, class KeyOf>
struct ValueKeyEntry {
  Value value;
  const std::string& key = KeyOf()(value);

  explicit ValueKeyEntry(Value v) : value(std::move(v)) {}
  ValueKeyEntry(const ValueKeyEntry& other) : value(other.value) {}
  ValueKeyEntry(ValueKeyEntry&& other) noexcept(std::is_nothrow_move_constructible_v<Value>)
      : value(std::move(other.value)) {}
  ValueKeyEntry& operator=(const ValueKeyEntry& other) {
    value = other.value;
    return *this;
  }
  ValueKeyEntry& operator=(ValueKeyEntry&& other) noexcept(
      std::is_nothrow_move_assignable_v<Value>) {
    value = std::move(other.value);
    return *this;
  }
};

}  // namespace dictionary_detail

template <class Value, class KeyOf = void>
class OrderedDictionary {
  static constexpr bool kKeyInValue = !std::is_void_v<KeyOf>;

 public:
  using Entry = std::conditional_t<kKeyInValue, dictionary_detail::ValueKeyEntry<Value, KeyOf>,
                                   dictionary_detail::KeptKeyEntry<Value>>;

  size_t Count() const noexcept { return entries_.size(); }
  bool Exists(std::string_view key) const { return IndexOf(key) != npos; }

  // Room for `count` entries without regrowing.
  void Reserve(size_t count) {
    entries_.reserve(count);
    if (SlotCountFor(count) > slots_.size()) Rehash(SlotCountFor(count));
  }

  // Adds a new key; throws Failure 457 if it is there already.
  void Add(std::string_view key, Value value) {
    if (!TryAdd(key, std::move(value))) throw Failure::Runtime(err::kKeyAlreadyAssociated);
  }
  // Adds a new key and answers true; leaves the dictionary alone when the key
  // is there already. The key is copied before the value is moved, so it may
  // be a view into the value.
  bool TryAdd(std::string_view key, Value&& value) {
    if constexpr (kKeyInValue) {
      const std::string& own = KeyOf()(value);
      // Most often the key is a view of the value's own.
      const bool same = own.data() == key.data() && own.size() == key.size();
      if (!same && !EqualsText(own, key)) throw Failure::Runtime(err::kInvalidProcedureCall);
    }
    const uint32_t hash = dictionary_detail::FoldedHash(key);
    if (Locate(key, hash) != npos) return false;
    if (SlotCountFor(entries_.size() + 1) > slots_.size())
      Rehash(SlotCountFor(entries_.size() + 1));
    if constexpr (kKeyInValue) {
      entries_.emplace_back(std::move(value));
    } else {
      entries_.push_back(Entry{std::string(key), std::move(value)});
    }
    Place(hash, entries_.size() - 1);
    return true;
  }

  // Item(key) = value: replaces the value of an existing key or adds it.
  void Set(std::string_view key, Value value) requires(!kKeyInValue) {
    if (Value* existing = Find(key)) {
      *existing = std::move(value);
    } else {
      Add(key, std::move(value));
    }
  }

  Value* Find(std::string_view key) requires(!kKeyInValue) {
    const size_t at = IndexOf(key);
    return at == npos ? nullptr : &entries_[at].value;
  }
  const Value* Find(std::string_view key) const {
    const size_t at = IndexOf(key);
    return at == npos ? nullptr : &entries_[at].value;
  }
  // The 0-based enumeration position of a key, or npos; constant time.
  static constexpr size_t npos = static_cast<size_t>(-1);
  size_t IndexOf(std::string_view key) const {
    return Locate(key, dictionary_detail::FoldedHash(key));
  }
  // The stored spelling of a key, or nullptr.
  const std::string* StoredKey(std::string_view key) const {
    const size_t at = IndexOf(key);
    return at == npos ? nullptr : &entries_[at].key;
  }

  // Removes a key; false if it was absent. Linear, as positions shift.
  bool Remove(std::string_view key) {
    const size_t at = IndexOf(key);
    if (at == npos) return false;
    entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(at));
    Rehash(slots_.size());
    return true;
  }

  void Clear() noexcept {
    entries_.clear();
    slots_.clear();
  }

  const std::vector<Entry>& Entries() const noexcept { return entries_; }
  auto begin() const noexcept { return entries_.begin(); }
  auto end() const noexcept { return entries_.end(); }

 private:
  // A hash and the entry's position plus one; position 0 marks a free slot.
  struct Slot {
    uint32_t hash = 0;
    uint32_t position = 0;
  };

  // A power of two, at most three quarters full.
  static size_t SlotCountFor(size_t count) {
    size_t slots = 8;
    while (slots * 3 < count * 4) slots *= 2;
    return count == 0 ? 0 : slots;
  }

  size_t Locate(std::string_view key, uint32_t hash) const {
    if (slots_.empty()) return npos;
    const size_t mask = slots_.size() - 1;
    for (size_t i = hash & mask;; i = (i + 1) & mask) {
      const Slot& slot = slots_[i];
      if (slot.position == 0) return npos;
      if (slot.hash == hash && EqualsText(entries_[slot.position - 1].key, key)) {
        return slot.position - 1;
      }
    }
  }

  void Place(uint32_t hash, size_t position) {
    const size_t mask = slots_.size() - 1;
    size_t i = hash & mask;
    while (slots_[i].position != 0) i = (i + 1) & mask;
    slots_[i] = Slot{hash, static_cast<uint32_t>(position + 1)};
  }

  void Rehash(size_t slotCount) {
    slots_.assign(slotCount, Slot{});
    for (size_t i = 0; i < entries_.size(); ++i) {
      Place(dictionary_detail::FoldedHash(entries_[i].key), i);
    }
  }

  std::vector<Entry> entries_;
  std::vector<Slot> slots_;
};

}  // namespace qvx
