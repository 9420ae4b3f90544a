// Scripting::Sort: the order of every list the user sees.
//
// Returns a new dictionary with the entries of `dic` ordered by their key
// (column 1) or their item (column 2, text items only), compared as text
// without regard to case. A dictionary of one entry or none comes back as
// given. The caller replaces its dictionary with the result.
//
// The order is that of the exchange sort the lists have always had: for each
// position, swap in any later row that compares smaller. Among rows that
// never compare equal that is plain ascending order, which a stable sort gives
// in O(n log n); keys of a dictionary never tie, so that is the usual path.
// Only rows that tie (possible in column 2) take the exchange sort itself,
// whose order among equals is its own.
//
//   dicList = Scripting::Sort(dicList);   // "10" before "9": text order
#pragma once

#include <algorithm>
#include <numeric>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "core/failure.h"
#include "core/ordered_dictionary.h"
#include "core/text.h"

namespace qvx::Scripting {

template <class V>
OrderedDictionary<V> Sort(const OrderedDictionary<V>& dic, int column = 1) {
  if (dic.Count() <= 1) return dic;
  if (column != 1 && column != 2) throw Failure::Runtime(err::kSubscriptOutOfRange);
  const auto& rows = dic.Entries();
  std::vector<std::string> folded;
  folded.reserve(rows.size());
  for (const auto& row : rows) {
    if (column == 1) {
      folded.push_back(FoldCase(row.key));
    } else if constexpr (std::is_convertible_v<const V&, std::string_view>) {
      folded.push_back(FoldCase(std::string_view(row.value)));
    } else {
      throw Failure::Runtime(err::kTypeMismatch);  // an object item has no text
    }
  }
  std::vector<size_t> order(rows.size());
  std::iota(order.begin(), order.end(), size_t{0});
  std::stable_sort(order.begin(), order.end(),
                   [&](size_t a, size_t b) { return folded[a] < folded[b]; });
  bool ties = false;
  for (size_t i = 1; i < order.size() && !ties; ++i) {
    ties = folded[order[i - 1]] == folded[order[i]];
  }
  if (ties) {
    std::iota(order.begin(), order.end(), size_t{0});
    for (size_t i = 0; i + 1 < order.size(); ++i) {
      for (size_t j = i; j < order.size(); ++j) {
        if (folded[order[i]] > folded[order[j]]) std::swap(order[i], order[j]);
      }
    }
  }
  OrderedDictionary<V> sorted;
  for (const size_t at : order) sorted.Add(rows[at].key, rows[at].value);
  return sorted;
}

}  // namespace qvx::Scripting
