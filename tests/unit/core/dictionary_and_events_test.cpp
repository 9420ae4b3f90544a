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
  EXPECT_TRUE(d.Exists("BETA"));
  EXPECT_THROW(d.Add("ALPHA", 9), Failure);
  d.Set("GAMMA", 4);
  ASSERT_TRUE(d.Remove("beta"));
  EXPECT_FALSE(d.Remove("beta"));
  std::vector<std::string> keys;
  for (const auto& e : d) keys.push_back(e.key);
  EXPECT_EQ(keys, (std::vector<std::string>{"alpha", "Gamma"}));
  EXPECT_EQ(*d.Find("gamma"), 4);
  EXPECT_EQ(*d.StoredKey("GAMMA"), "Gamma");
  d.Add("Delta", 5);  // indices stay right after a removal
  EXPECT_EQ(*d.Find("delta"), 5);
  EXPECT_EQ(*d.Find("alpha"), 2);
}

TEST(EventSource, SubscriptionEndsWithItsHandle) {
  EventSource source;
  int calls = 0;
  EventArgs args;
  {
    Subscription sub = source.Subscribe("NewExplorer", [&](EventArgs&) { ++calls; });
    EXPECT_EQ(source.Raise("newexplorer", args), 1u);
  }
  EXPECT_EQ(source.Raise("NewExplorer", args), 0u);
  EXPECT_EQ(calls, 1);
}

TEST(EventSource, HandlersMayUnsubscribeWhileRaised) {
  EventSource source;
  Subscription first, second;
  int secondCalls = 0;
  first = source.Subscribe("Close", [&](EventArgs&) { second.Reset(); });
  second = source.Subscribe("Close", [&](EventArgs&) { ++secondCalls; });
  EventArgs args;
  source.Raise("Close", args);
  EXPECT_EQ(secondCalls, 0);
  EXPECT_EQ(source.HandlerCount("Close"), 1u);
}

TEST(EventSource, HandlersWriteBackByReferenceArguments) {
  EventSource source;
  Subscription sub = source.Subscribe("BeforeClose", [](EventArgs& a) { a[0] = Variant(true); });
  EventArgs args{Variant(false)};
  source.Raise("BeforeClose", args);
  EXPECT_TRUE(args[0].ToBoolean());
}

}  // namespace
}  // namespace qvx
