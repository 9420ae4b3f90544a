// The lists' order against the exchange sort they have always had, written
// here the straightforward way, on random lists: case variants, entries that
// differ only in case, empty texts, non-ASCII and invalid bytes, and ties.
#include <gtest/gtest.h>

#include <random>

#include "settings/scripting_sort.h"
#include "settings/single_list.h"
#include "settings_fixture.h"

namespace qvx {
namespace {

using testing::SettingsFixture;
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

// cSingleList.FromString as it always was: split, add each non-empty part
// that is absent (by text compare), then the exchange sort.
Strings ReferenceFromString(std::string_view text, std::string_view delimiter) {
  std::vector<Row> rows;
  if (text.empty()) return {};
  for (const std::string& part : Split(text, delimiter)) {
    if (part.empty()) continue;
    bool present = false;
    for (const Row& row : rows) present = present || CompareText(row.first, part) == 0;
    if (!present) rows.emplace_back(part, part);
  }
  Strings items;
  for (const Row& row : ReferenceExchangeSort(rows, 1)) items.push_back(row.second);
  return items;
}

// Short texts from a small alphabet, so that case variants and ties are common.
std::string RandomText(std::mt19937& random) {
  static const Strings pieces = {
      "a",        "A",        "b",        "B",    "z",    "Z",        "0",
      "9",        " ",        "_",        "-",    "~",    "\xC3\xA9", "\xC3\x89",  // é É
      "\xC3\x9F", "\xD0\x96", "\xD0\xB6", "\x80", "\xFF", "\xC3",     "\xEF\xBF\xBD"};
  std::string text;
  const size_t length = random() % 4;  // the empty text among them
  for (size_t i = 0; i < length; ++i) text += pieces[random() % pieces.size()];
  return text;
}

Strings Keys(const OrderedDictionary<std::string>& dic) {
  Strings keys;
  for (const auto& entry : dic) keys.push_back(entry.key);
  return keys;
}

TEST(ListOrder, SortMatchesTheExchangeSortOnBothColumns) {
  for (unsigned seed = 1; seed <= 400; ++seed) {
    std::mt19937 random(seed);
    OrderedDictionary<std::string> dic;
    std::vector<Row> rows;
    const size_t count = random() % 60;
    // Few distinct items, so that column 2 has many ties.
    const size_t itemKinds = 1 + random() % 6;
    for (size_t i = 0; i < count; ++i) {
      const std::string key = RandomText(random);
      const std::string item = std::string(1, "aAbBcC"[random() % itemKinds]);
      if (dic.Exists(key)) continue;
      dic.Add(key, item);
      rows.emplace_back(key, item);
    }
    for (const int column : {1, 2}) {
      Strings expected;
      for (const Row& row : ReferenceExchangeSort(rows, column)) expected.push_back(row.first);
      ASSERT_EQ(Keys(Scripting::Sort(dic, column)), expected)
          << "seed " << seed << " column " << column;
    }
  }
}

TEST(ListOrder, ExchangeOrderOfManyTiesMatchesOnLongLists) {
  for (unsigned seed = 1; seed <= 40; ++seed) {
    std::mt19937 random(seed);
    const size_t count = 200 + random() % 400;
    const size_t kinds = 1 + random() % 8;
    std::vector<Row> rows;
    std::vector<std::string> folded;
    for (size_t i = 0; i < count; ++i) {
      const std::string text(1, static_cast<char>('a' + random() % kinds));
      rows.emplace_back(std::to_string(i), text);
      folded.push_back(FoldCase(text));
    }
    std::vector<size_t> expected;
    for (const Row& row : ReferenceExchangeSort(rows, 2)) expected.push_back(std::stoul(row.first));
    ASSERT_EQ(Scripting::ExchangeSortOrder(folded), expected) << "seed " << seed;
  }
}

TEST(ListOrder, TiesAreNotKeptInTheirInputOrder) {
  // b1 b2 a: the first pass puts a first and b1 where a was.
  const std::vector<size_t> order = Scripting::ExchangeSortOrder({"b", "b", "a"});
  EXPECT_EQ(order, (std::vector<size_t>{2, 1, 0}));
}

TEST(ListOrder, FromStringMatchesTheExchangeSortReading) {
  for (unsigned seed = 1; seed <= 400; ++seed) {
    std::mt19937 random(seed);
    SettingsFixture f;
    Strings lines;
    const size_t count = random() % 50;
    for (size_t i = 0; i < count; ++i) lines.push_back(RandomText(random));
    const std::string text = Join(lines, "\r\n");
    cSingleList list;
    list.FromString(f.s, text, "\r\n");
    Strings items;
    for (const auto& entry : list.dicList) items.push_back(entry.value);
    ASSERT_EQ(items, ReferenceFromString(text, "\r\n")) << "seed " << seed;
    EXPECT_TRUE(f.ui.reports.empty());
  }
}

TEST(ListOrder, GetItemIndexAndGetItemMatchAWalk) {
  std::mt19937 random(7);
  SettingsFixture f;
  Strings lines;
  for (int i = 0; i < 300; ++i) lines.push_back(RandomText(random));
  cSingleList list;
  list.FromString(f.s, Join(lines, ";"), ";");
  const auto walk = [&](const std::string& item) {
    int16_t position = 0;
    for (const auto& entry : list.dicList) {
      if (entry.value == item) break;
      ++position;
    }
    return position;
  };
  for (int i = 0; i < 300; ++i) {
    const std::string probe = i % 2 == 0 ? lines[static_cast<size_t>(i)] : RandomText(random);
    ASSERT_EQ(list.getItemIndex(f.s, probe), walk(probe)) << i;
  }
  for (int16_t i = -2; i <= static_cast<int16_t>(list.dicList.Count()); ++i) {
    const std::string expected =
        i >= 0 && static_cast<size_t>(i) < list.dicList.Count()
            ? std::string(Trim(list.dicList.Entries()[static_cast<size_t>(i)].value))
            : std::string();
    ASSERT_EQ(list.GetItem(f.s, i), expected);
  }
  EXPECT_TRUE(f.ui.reports.empty());
}

TEST(ListOrder, EveryOperationOfTheListExists) {
  // Those with no caller in the add-in too: the list's whole surface.
  SettingsFixture f;
  cSingleList list;
  list.FromArray(f.s, {Variant("b"), Variant("a"), Variant("B")});
  EXPECT_EQ(list.ToString(f.s, ",", false), "b,a");
  EXPECT_EQ(list.ToStringTab(f.s), "b\ta\t ");
  EXPECT_EQ(list.ToArray(f.s), (std::vector<Strings>{{"b", "a"}}));
  const std::string drawn = list.RandomItem(f.s);
  EXPECT_TRUE(drawn == "a" || drawn == "b");
  EXPECT_EQ(list.ToString(f.s, ",", true), "a,b");
  list.FromRecordset(f.s, Object());
  EXPECT_EQ(list.dicList.Count(), 0u);
  EXPECT_TRUE(f.ui.reports.empty());
  using Control = void (cSingleList::*)(AddinState&, const Object&);
  [[maybe_unused]] const Control fromControl = &cSingleList::FromComboOrList;
  [[maybe_unused]] const Control toRecordset = &cSingleList::ToRS;
  [[maybe_unused]] const auto fromListView = &cSingleList::FromListView;
  [[maybe_unused]] const auto populate = &cSingleList::PopulateComboList;
}

}  // namespace
}  // namespace qvx
