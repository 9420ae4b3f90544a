#include "sim/message_queue.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace qvx::sim {
namespace {

TEST(MessageQueue, WorkRunsInOrderOnceEvenWhenItPostsOrPumpsItself) {
  MessageQueue queue;
  std::vector<std::string> ran;
  queue.Post([&] {
    ran.push_back("outer");
    queue.Post([&] { ran.push_back("posted"); });
    queue.RunPending();  // a handler that itself lets messages through
  });
  queue.Post([&] { ran.push_back("second"); });
  EXPECT_TRUE(ran.empty());
  queue.RunPending();
  EXPECT_EQ(ran, (std::vector<std::string>{"outer", "second", "posted"}));
  EXPECT_TRUE(queue.empty());
}

}  // namespace
}  // namespace qvx::sim
