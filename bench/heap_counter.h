// Counts the heap a benchmark program holds: including this header in one
// source file of a program replaces the global operator new and delete by
// ones that add up the usable size of each block (glibc's
// malloc_usable_size), so a benchmark can state the peak and the retained
// bytes of an operation.
//
//   const HeapMark mark;
//   catalogue.FromString(s, text);
//   state.counters["peak_MB"] = mark.PeakMegabytes();
#pragma once

#include <malloc.h>

#include <atomic>
#include <cstdlib>
#include <new>

// The replacements pair malloc with free on purpose.
#pragma GCC diagnostic ignored "-Wmismatched-new-delete"

namespace qvx::bench {

struct HeapCounter {
  std::atomic<size_t> current{0};
  std::atomic<size_t> peak{0};
};

inline HeapCounter& Heap() {
  static HeapCounter counter;
  return counter;
}

// The heap held since the mark was made: now and at its highest.
class HeapMark {
 public:
  HeapMark() : base_(Heap().current.load()) { Heap().peak = base_; }
  double PeakMegabytes() const { return Megabytes(Heap().peak.load()); }
  double HeldMegabytes() const { return Megabytes(Heap().current.load()); }

 private:
  double Megabytes(size_t bytes) const {
    return bytes > base_ ? static_cast<double>(bytes - base_) / 1e6 : 0.0;
  }
  size_t base_;
};

}  // namespace qvx::bench

void* operator new(size_t size) {
  void* block = std::malloc(size == 0 ? 1 : size);
  if (block == nullptr) throw std::bad_alloc();
  auto& heap = qvx::bench::Heap();
  const size_t now = heap.current += malloc_usable_size(block);
  size_t peak = heap.peak.load();
  while (now > peak && !heap.peak.compare_exchange_weak(peak, now)) {
  }
  return block;
}
void operator delete(void* block) noexcept {
  if (block == nullptr) return;
  qvx::bench::Heap().current -= malloc_usable_size(block);
  std::free(block);
}
void operator delete(void* block, size_t) noexcept {
  operator delete(block);
}
