// Scripting::Sort gives exactly the order of the exchange sort it replaces.
#include "settings/scripting_sort.h"

#include <gtest/gtest.h>

#include <random>

namespace qvx {
namespace {

using Dictionary = OrderedDictionary<std::string>;

// The exchange sort as the lists have always been sorted.
std::vector<std::string> ExchangeSortKeys(const Dictionary& dic, int column) {
  std::vector<std::pair<std::string, std::string>> rows;
  for (const auto& e : dic) rows.emplace_back(e.key, e.value);
  for (size_t i = 0; i + 1 < rows.size(); ++i) {
    for (size_t j = i; j < rows.size(); ++j) {
      const auto& a = column == 1 ? rows[i].first : rows[i].second;
      const auto& b = column == 1 ? rows[j].first : rows[j].second;
      if (CompareText(a, b) > 0) std::swap(rows[i], rows[j]);
    }
  }
  std::vector<std::string> keys;
  for (const auto& row : rows) keys.push_back(row.first);
  return keys;
}

std::vector<std::string> Keys(const Dictionary& dic) {
  std::vector<std::string> keys;
  for (const auto& e : dic) keys.push_back(e.key);
  return keys;
}

TEST(ScriptingSort, TextOrderIgnoringCaseAndItemsKeepTheirKeys) {
  Dictionary d;
  for (const char* k : {"9", "beta", "10", "Alpha", "_x", "alpha2"}) d.Add(k, std::string(k) + "!");
  const Dictionary sorted = Scripting::Sort(d);
  EXPECT_EQ(Keys(sorted), (std::vector<std::string>{"10", "9", "_x", "Alpha", "alpha2", "beta"}));
  EXPECT_EQ(*sorted.Find("Alpha"), "Alpha!");
  Dictionary one;
  one.Add("x", "item");
  EXPECT_EQ(Scripting::Sort(one, 7).Count(), 1u);  // not even the column is looked at
  EXPECT_THROW(Scripting::Sort(d, 3), Failure);
}

TEST(ScriptingSort, SameOrderAsTheExchangeSortOnRandomLists) {
  std::mt19937 random(42);
  const std::string letters = "aAbBcC9 1_zZ\xC3\xA9\xC3\x89";  // with é and É
  for (int round = 0; round < 300; ++round) {
    Dictionary d;
    const size_t count = random() % 40;
    for (size_t i = 0; i < count; ++i) {
      std::string key;
      const size_t length = 1 + random() % 4;
      for (size_t c = 0; c < length; ++c) {
        const size_t at = random() % letters.size();
        key += letters[at];
      }
      key = SanitizeUtf8(key);
      // Items drawn from few values, so that column 2 has ties.
      if (!d.Exists(key)) d.Add(key, std::string(1, "xXy"[random() % 3]));
    }
    for (const int column : {1, 2}) {
      ASSERT_EQ(Keys(Scripting::Sort(d, column)), ExchangeSortKeys(d, column))
          << "round " << round << " column " << column;
    }
  }
}

}  // namespace
}  // namespace qvx
