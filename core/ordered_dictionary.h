// OrderedDictionary: unique text keys compared without regard to case,
// enumerated in insertion order (Scripting.Dictionary with text compare).
//
//   OrderedDictionary<int> d;
//   d.Add("Alpha", 1);
//   d.Exists("ALPHA");   // true
//   d.Add("alpha", 2);   // Failure 457
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "core/failure.h"
#include "core/text.h"

namespace qvx {

template <class Value>
class OrderedDictionary {
 public:
  struct Entry {
    std::string key;
    Value value;
  };

  size_t Count() const noexcept { return entries_.size(); }
  bool Exists(std::string_view key) const { return index_.count(FoldCase(key)) != 0; }

  // Adds a new key; throws Failure 457 if it is there already.
  void Add(std::string_view key, Value value) {
    std::string folded = FoldCase(key);
    if (index_.count(folded) != 0) throw Failure::Runtime(err::kKeyAlreadyAssociated);
    index_.emplace(std::move(folded), entries_.size());
    entries_.push_back(Entry{std::string(key), std::move(value)});
  }

  // Item(key) = value: replaces the value of an existing key or adds it.
  void Set(std::string_view key, Value value) {
    if (Value* existing = Find(key)) {
      *existing = std::move(value);
    } else {
      Add(key, std::move(value));
    }
  }

  Value* Find(std::string_view key) {
    auto it = index_.find(FoldCase(key));
    return it == index_.end() ? nullptr : &entries_[it->second].value;
  }
  const Value* Find(std::string_view key) const {
    auto it = index_.find(FoldCase(key));
    return it == index_.end() ? nullptr : &entries_[it->second].value;
  }
  // The 0-based enumeration position of a key, or npos; constant time.
  static constexpr size_t npos = static_cast<size_t>(-1);
  size_t IndexOf(std::string_view key) const {
    auto it = index_.find(FoldCase(key));
    return it == index_.end() ? npos : it->second;
  }
  // The stored spelling of a key, or nullptr.
  const std::string* StoredKey(std::string_view key) const {
    auto it = index_.find(FoldCase(key));
    return it == index_.end() ? nullptr : &entries_[it->second].key;
  }

  // Removes a key; false if it was absent.
  bool Remove(std::string_view key) {
    auto it = index_.find(FoldCase(key));
    if (it == index_.end()) return false;
    const size_t at = it->second;
    index_.erase(it);
    entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(at));
    for (auto& [folded, position] : index_) {
      if (position > at) --position;
    }
    return true;
  }

  void Clear() noexcept {
    entries_.clear();
    index_.clear();
  }

  const std::vector<Entry>& Entries() const noexcept { return entries_; }
  auto begin() const noexcept { return entries_.begin(); }
  auto end() const noexcept { return entries_.end(); }

 private:
  std::vector<Entry> entries_;
  std::unordered_map<std::string, size_t> index_;
};

}  // namespace qvx
