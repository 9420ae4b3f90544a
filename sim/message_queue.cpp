#include "sim/message_queue.h"

namespace qvx::sim {

bool MessageQueue::RunOne() {
  if (queue_.empty()) return false;
  Work work = std::move(queue_.front());
  queue_.pop_front();
  if (work) work();
  return true;
}

size_t MessageQueue::RunPending(size_t limit) {
  ++pumps_;
  size_t ran = 0;
  while (ran < limit && RunOne()) ++ran;
  return ran;
}

}  // namespace qvx::sim
