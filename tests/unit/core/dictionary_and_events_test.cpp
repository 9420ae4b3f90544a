#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "core/events.h"
#include "core/failure.h"
#include "core/ordered_dictionary.h"
#include "core/variant.h"

namespace qvx {
namespace {

TEST(OrderedDictionary, CaseBlindUniqueKeysInInsertionOrder) {
  OrderedDictionary<int> d;
  d.Add("Beta", 1);
  d.Add("alpha", 2);
  d.Add("Gamma", 3);
  EXPECT_THROW(d.Add("ALPHA", 9), Failure);
  d.Set("GAMMA", 4);
  ASSERT_TRUE(d.Remove("beta"));
  EXPECT_FALSE(d.Remove("beta"));
  d.Add("Delta", 5);  // indices stay right after a removal
  std::vector<std::string> keys;
  for (const auto& e : d) keys.push_back(e.key);
  EXPECT_EQ(keys, (std::vector<std::string>{"alpha", "Gamma", "Delta"}));
  EXPECT_EQ(*d.Find("gamma"), 4);
  EXPECT_EQ(*d.Find("delta"), 5);
  EXPECT_EQ(*d.StoredKey("GAMMA"), "Gamma");
}

// Keys held in their values follow them when entries move (growth,
// removal) or are copied, short texts kept inline included; a value added
// under another key is refused.
TEST(OrderedDictionary, KeysHeldInTheirValuesFollowThem) {
  struct Itself {
    const std::string& operator()(const std::string& s) const { return s; }
  };
  auto d = std::make_unique<OrderedDictionary<std::string, Itself>>();
  for (int i = 0; i < 100; ++i) d->Add("k" + std::to_string(i), "K" + std::to_string(i));
  EXPECT_THROW(d->Add("other", "value"), Failure);
  ASSERT_TRUE(d->Remove("k0"));
  const OrderedDictionary<std::string, Itself> copy = *d;
  d.reset();
  ASSERT_EQ(copy.Count(), 99u);
  for (size_t i = 0; i < copy.Count(); ++i) {
    EXPECT_EQ(copy.Entries()[i].key, "K" + std::to_string(i + 1));
    EXPECT_EQ(copy.IndexOf("k" + std::to_string(i + 1)), i);
  }
}

TEST(EventSource, HandlersEndWithTheirHandleEvenWhileRaisedAndWriteBack) {
  EventSource source;
  EventArgs args{Variant(false)};
  {
    Subscription second;
    int secondCalls = 0;
    Subscription first = source.Subscribe("BeforeClose", [&](EventArgs& a) {
      second.Reset();
      a[0] = Variant(true);
    });
    second = source.Subscribe("BeforeClose", [&](EventArgs&) { ++secondCalls; });
    EXPECT_EQ(source.Raise("beforeclose", args), 1u);
    EXPECT_EQ(secondCalls, 0);
    EXPECT_TRUE(args[0].ToBoolean());  // by-reference arguments come back
    EXPECT_EQ(source.HandlerCount("BeforeClose"), 1u);
  }
  EXPECT_EQ(source.Raise("BeforeClose", args), 0u);
}

}  // namespace
}  // namespace qvx
