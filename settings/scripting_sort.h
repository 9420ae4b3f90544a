// Scripting::Sort: the order of every list the user sees.
//
// Returns a new dictionary with the entries of `dic` ordered by their key
// (column 1) or their item (column 2, text items only), compared as text
// without regard to case. A dictionary of one entry or none comes back as
// given. The caller replaces its dictionary with the result.
//
// The order is exactly that of the exchange sort the lists have always had:
// for each position i, every later row j that compares smaller is swapped into
// i. Rows that never tie come out in plain ascending order; rows that tie
// (possible in column 2 only, keys are unique) come out in the exchange sort's
// own order among equals, which is not their input order. ExchangeSortOrder
// computes that order without the quadratic number of comparisons.
//
//   dicList = Scripting::Sort(dicList);   // "10" before "9": text order
#pragma once

#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "core/failure.h"
#include "core/ordered_dictionary.h"
#include "core/text.h"

namespace qvx::Scripting {

// The permutation the exchange sort applies to rows whose case-folded sort
// texts are `folded`: result[p] is the input row that ends at position p.
// O(n log n) comparisons and O(n log n) extra work for ties.
std::vector<size_t> ExchangeSortOrder(const std::vector<std::string>& folded);

template <class V, class KeyOf>
OrderedDictionary<V, KeyOf> Sort(const OrderedDictionary<V, KeyOf>& dic, int column = 1) {
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
  OrderedDictionary<V, KeyOf> sorted;
  for (const size_t at : ExchangeSortOrder(folded)) sorted.Add(rows[at].key, rows[at].value);
  return sorted;
}

}  // namespace qvx::Scripting
