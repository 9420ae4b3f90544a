#include <gtest/gtest.h>

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
