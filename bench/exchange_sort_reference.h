// The keyed list's reading as the legacy code did it, kept beside the
// benchmarks as the yardstick: split, add each non-empty part that is absent
// (the dictionary's hashed key test), then the
// exchange sort: for each row i, swap in every later row j that compares
// smaller, ignoring case. Quadratic in the number of entries.
#pragma once

#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

#include "core/text.h"

namespace qvx::bench {

inline void ReferenceExchangeSort(std::vector<std::string>& rows) {
  for (size_t i = 0; i + 1 < rows.size(); ++i) {
    for (size_t j = i; j < rows.size(); ++j) {
      if (CompareText(rows[i], rows[j]) > 0) std::swap(rows[i], rows[j]);
    }
  }
}

// Entries of the text in the order the list would hold them.
inline std::vector<std::string> ReferenceFromString(std::string_view text,
                                                    std::string_view delimiter) {
  std::vector<std::string> rows;
  if (text.empty()) return rows;
  std::unordered_set<std::string> keys;
  for (std::string& part : Split(text, delimiter)) {
    if (part.empty() || !keys.insert(FoldCase(part)).second) continue;
    rows.push_back(std::move(part));
  }
  ReferenceExchangeSort(rows);
  return rows;
}

}  // namespace qvx::bench
