// The lists against the straightforward algorithms they replaced, written
// here as they were, on random lists: case variants, entries that differ only
// in case, empty texts, non-ASCII and invalid bytes, and ties. Their order
// against the exchange sort, and an item's index against a walk of the list.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "core/text.h"
#include "settings/scripting_sort.h"
#include "settings_fixture.h"

namespace qvx {
namespace {

using Strings = std::vector<std::string>;
using Row = std::pair<std::string, std::string>;

// For i from the first row to the last but one, for j from i to the last:
// swap when row i compares greater than row j, as text, ignoring case.
std::vector<Row> ReferenceExchangeSort(std::vector<Row> rows, int column) {
  for (size_t i = 0; i + 1 < rows.size(); ++i) {
    for (size_t j = i; j < rows.size(); ++j) {
      const std::string& a = column == 1 ? rows[i].first : rows[i].second;
      const std::string& b = column == 1 ? rows[j].first : rows[j].second;
      if (CompareText(a, b) > 0) std::swap(rows[i], rows[j]);
    }
  }
  return rows;
}

// Short texts from a small alphabet, so that case variants and ties are common.
std::string RandomText(std::mt19937& random) {
  static const Strings pieces = {
      "a",        "A",        "b",        "B",    "z",    "Z",        "0",
      "9",        " ",        "_",        "-",    "~",    "\xC3\xA9", "\xC3\x89",  // é É
      "\xC3\x9F", "\xD0\x96", "\xD0\xB6", "\x80", "\xFF", "\xC3",     "\xEF\xBF\xBD"};
  std::string text;  // the empty text among them
  for (size_t i = random() % 4; i > 0; --i) text += pieces[random() % pieces.size()];
  return text;
}

// Short lists on most seeds, long ones with many ties on every twentieth.
TEST(ListOrder, SortMatchesTheExchangeSortOnBothColumns) {
  for (unsigned seed = 1; seed <= 400; ++seed) {
    std::mt19937 random(seed);
    OrderedDictionary<std::string> dic;
    std::vector<Row> rows;
    const size_t count = seed % 20 == 0 ? 200 + random() % 400 : random() % 60;
    // Few distinct items, so that column 2 has many ties.
    const size_t itemKinds = 1 + random() % 6;
    for (size_t i = 0; i < count; ++i) {
      const std::string key = seed % 20 == 0 ? std::to_string(i) : RandomText(random);
      const std::string item = std::string(1, "aAbBcC"[random() % itemKinds]);
      if (dic.Exists(key)) continue;
      dic.Add(key, item);
      rows.emplace_back(key, item);
    }
    for (const int column : {1, 2}) {
      Strings expected, sorted;
      for (const Row& row : ReferenceExchangeSort(rows, column)) expected.push_back(row.first);
      for (const auto& entry : Scripting::Sort(dic, column)) sorted.push_back(entry.key);
      ASSERT_EQ(sorted, expected) << "seed " << seed << " column " << column;
    }
  }
}

// The index is looked up by key; the walk compared every item, case included.
TEST(ListOrder, ItemIndexMatchesAWalkOfTheList) {
  testing::SettingsFixture f;
  for (unsigned seed = 1; seed <= 200; ++seed) {
    std::mt19937 random(seed);
    std::string text;
    for (size_t i = random() % 40; i > 0; --i) text += RandomText(random) + "\r\n";
    cSingleList list;
    list.FromString(f.s, text, "\r\n");               // sorted, which rebuilds the dictionary
    const std::string appended = RandomText(random);  // out of order, as the list views add
    if (seed % 2 == 0 && !list.dicList.Exists(appended)) list.dicList.Add(appended, appended);
    const Strings items = testing::Items(list);
    Strings queries = items;
    for (const std::string& item : items) {
      queries.push_back(UCase(item));
      queries.push_back(LCase(item));
    }
    for (size_t i = 0; i < 20; ++i) queries.push_back(RandomText(random));
    for (const std::string& query : queries) {
      const size_t walked = std::find(items.begin(), items.end(), query) - items.begin();
      ASSERT_EQ(list.getItemIndex(f.s, query), static_cast<int16_t>(walked))
          << "seed " << seed << " query '" << query << "'";
    }
  }
  EXPECT_TRUE(f.Reports().empty());
}

TEST(ListOrder, ItemsKeepTheirKeysAndOnlyTwoColumnsAreKnown) {
  OrderedDictionary<std::string> d;
  for (const char* k : {"beta", "Alpha", "_x"}) d.Add(k, std::string(k) + "!");
  EXPECT_EQ(*Scripting::Sort(d).Find("Alpha"), "Alpha!");
  EXPECT_THROW(Scripting::Sort(d, 3), Failure);
}

}  // namespace
}  // namespace qvx
