#include "sim/message_queue.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace qvx::sim {
namespace {

TEST(MessageQueue, RunsWorkOnlyWhenMessagesAreLetThrough) {
  MessageQueue queue;
  std::vector<int> ran;
  queue.Post([&] { ran.push_back(1); });
  queue.Post([&] { ran.push_back(2); });
  EXPECT_TRUE(ran.empty());
  EXPECT_EQ(queue.size(), 2u);
  EXPECT_EQ(queue.RunPending(), 2u);
  EXPECT_EQ(ran, (std::vector<int>{1, 2}));
  EXPECT_TRUE(queue.empty());
  EXPECT_EQ(queue.RunPending(), 0u);
  EXPECT_EQ(queue.pumps(), 2u);
}

TEST(MessageQueue, WorkThatPostsWorkRunsInTheSamePump) {
  MessageQueue queue;
  std::vector<std::string> ran;
  queue.Post([&] {
    ran.push_back("a");
    queue.Post([&] { ran.push_back("c"); });
  });
  queue.Post([&] { ran.push_back("b"); });
  EXPECT_EQ(queue.RunPending(), 3u);
  EXPECT_EQ(ran, (std::vector<std::string>{"a", "b", "c"}));
}

TEST(MessageQueue, NestedPumpsRunEachPieceOnce) {
  MessageQueue queue;
  std::vector<std::string> ran;
  queue.Post([&] {
    ran.push_back("outer");
    queue.RunPending();  // a handler that itself lets messages through
  });
  queue.Post([&] { ran.push_back("second"); });
  queue.Post([&] { ran.push_back("third"); });
  queue.RunPending();
  EXPECT_EQ(ran, (std::vector<std::string>{"outer", "second", "third"}));
}

TEST(MessageQueue, SelfPostingWorkStopsAtTheLimit) {
  MessageQueue queue;
  int runs = 0;
  std::function<void()> again = [&] {
    ++runs;
    queue.Post(again);
  };
  queue.Post(again);
  EXPECT_EQ(queue.RunPending(5), 5u);
  EXPECT_EQ(runs, 5);
  EXPECT_EQ(queue.size(), 1u);
  queue.Clear();
  EXPECT_FALSE(queue.RunOne());
}

}  // namespace
}  // namespace qvx::sim
