// MessageQueue: work that waits until the add-in lets pending messages
// through, the way host events and window messages wait for DoEvents.
//
// Tests and scenarios Post callbacks; the native platform's DoEvents calls
// RunPending. Work may post more work and may itself let messages through
// (a nested RunPending): each piece is taken off the queue before it runs, so
// nothing runs twice. RunPending drains the queue, work posted meanwhile
// included, but stops after `limit` pieces so that work that keeps posting
// itself cannot hang the caller.
//
//   world.Pending().Post([&] { world.Select(explorer, {other}); });
//   addin.TagSelection();   // lets messages through between two items
#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <string>
#include <utility>

namespace qvx::sim {

class MessageQueue {
 public:
  using Work = std::function<void()>;
  static constexpr size_t kDefaultLimit = 10000;

  void Post(Work work) { queue_.push_back(std::move(work)); }
  // Runs queued work in order; returns how many pieces ran.
  size_t RunPending(size_t limit = kDefaultLimit);
  // Runs only the oldest piece, if any.
  bool RunOne();

  size_t size() const noexcept { return queue_.size(); }
  bool empty() const noexcept { return queue_.empty(); }
  void Clear() { queue_.clear(); }
  // How many times RunPending was called (how often messages were let through).
  size_t pumps() const noexcept { return pumps_; }

 private:
  std::deque<Work> queue_;
  size_t pumps_ = 0;
};

}  // namespace qvx::sim
