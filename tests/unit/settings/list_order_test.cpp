// The lists' order against the exchange sort they have always had, written
// here the straightforward way, on random lists: case variants, entries that
// differ only in case, empty texts, non-ASCII and invalid bytes, and ties.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "bench/exchange_sort_reference.h"
#include "settings/scripting_sort.h"
#include "settings/single_list.h"
#include "settings_fixture.h"

namespace qvx {
namespace {

using testing::SettingsFixture;
using testing::Strings;
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

TEST(ListOrder, ItemsKeepTheirKeysAndOnlyTwoColumnsAreKnown) {
  OrderedDictionary<std::string> d;
  for (const char* k : {"9", "beta", "10", "Alpha", "_x", "alpha2"}) d.Add(k, std::string(k) + "!");
  const auto sorted = Scripting::Sort(d);
  EXPECT_EQ(*sorted.Find("Alpha"), "Alpha!");
  OrderedDictionary<std::string> one;
  one.Add("x", "item");
  EXPECT_EQ(Scripting::Sort(one, 7).Count(), 1u);  // not even the column is looked at
  EXPECT_THROW(Scripting::Sort(d, 3), Failure);
}

// Reading a list, and finding an item in it, as the walk always did.
TEST(ListOrder, FromStringAndGetItemIndexMatchTheOldWay) {
  for (unsigned seed = 1; seed <= 400; ++seed) {
    std::mt19937 random(seed);
    SettingsFixture f;
    Strings lines;
    for (size_t i = random() % 50; i > 0; --i) lines.push_back(RandomText(random));
    const std::string text = Join(lines, "\r\n");
    cSingleList list;
    list.FromString(f.s, text, "\r\n");
    const Strings items = testing::Items(list);
    ASSERT_EQ(items, bench::ReferenceFromString(text, "\r\n")) << "seed " << seed;
    lines.push_back(RandomText(random));
    for (const std::string& probe : lines) {
      const auto walk = std::find(items.begin(), items.end(), probe) - items.begin();
      ASSERT_EQ(list.getItemIndex(f.s, probe), walk) << "seed " << seed << " " << probe;
    }
    EXPECT_TRUE(f.Reports().empty());
  }
}

}  // namespace
}  // namespace qvx
