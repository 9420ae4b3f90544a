#include "settings/scripting_sort.h"

#include <algorithm>
#include <numeric>

namespace qvx::Scripting {
namespace {

// Counts over positions 0..n-1: add, prefix sums, and the k-th set position.
class Fenwick {
 public:
  explicit Fenwick(size_t n) : tree_(n + 1, 0) {}
  void Add(size_t at, long delta) {
    for (size_t i = at + 1; i < tree_.size(); i += i & (~i + 1)) tree_[i] += delta;
  }
  // Sum over positions [0, end).
  long Prefix(size_t end) const {
    long sum = 0;
    for (size_t i = end; i > 0; i -= i & (~i + 1)) sum += tree_[i];
    return sum;
  }
  // The position holding the (rank+1)-th unit, all counts being 0 or 1.
  size_t Kth(size_t rank) const {
    size_t at = 0;
    long left = static_cast<long>(rank) + 1;
    size_t step = 1;
    while (step * 2 < tree_.size()) step *= 2;
    for (; step > 0; step /= 2) {
      if (at + step < tree_.size() && tree_[at + step] < left) {
        at += step;
        left -= tree_[at];
      }
    }
    return at;  // 1-based node `at + 1` is 0-based position `at`
  }

 private:
  std::vector<long> tree_;
};

// The final order of one group of equal rows.
//
// One pass of the exchange sort rotates the rows that are strict running
// minima of what is left: the first goes to the next one's place, the last to
// the front. For the largest rows among those not larger than the group's
// text (so: the group, plus the smaller rows S) this means: a row of the group
// moves only when it stands first, and then to the place of the first S. Read
// left to right, the group behaves as a queue: a row of the group joins at
// the back, and each S met while the queue is not empty sends the front row
// to the back. Larger rows never change that. `gaps[t]` is the number of S
// between the group's row t and row t + 1 (the end, for the last).
//
// The queue is replayed backwards over the final places: a row pushed at
// step t was last in the queue of t rows, before the gaps[t] turns.
void OrderGroup(const std::vector<size_t>& rows, const std::vector<size_t>& gaps, size_t* out) {
  const size_t k = rows.size();
  Fenwick free(k);
  for (size_t slot = 0; slot < k; ++slot) free.Add(slot, 1);
  size_t front = 0;  // rank, among the free places, of the queue's front
  for (size_t t = k; t >= 1; --t) {
    const size_t turns = gaps[t - 1] % t;
    const size_t before = (front + t - turns) % t;
    const size_t last = (before + t - 1) % t;
    const size_t slot = free.Kth(last);
    out[slot] = rows[t - 1];
    free.Add(slot, -1);
    front = before > last ? before - 1 : before;
  }
}

}  // namespace

std::vector<size_t> ExchangeSortOrder(const std::vector<std::string>& folded) {
  const size_t n = folded.size();
  std::vector<size_t> order(n);
  std::iota(order.begin(), order.end(), size_t{0});
  std::stable_sort(order.begin(), order.end(),
                   [&](size_t a, size_t b) { return folded[a] < folded[b]; });
  bool ties = false;
  for (size_t i = 1; i < n && !ties; ++i) ties = folded[order[i - 1]] == folded[order[i]];
  if (!ties) return order;

  // Groups of equal rows, smallest first; `smaller` marks the rows of the
  // groups already done, by input position.
  Fenwick smaller(n);
  std::vector<size_t> rows, gaps, arranged;
  for (size_t begin = 0; begin < n;) {
    size_t end = begin + 1;
    while (end < n && folded[order[end]] == folded[order[begin]]) ++end;
    if (end - begin > 1) {
      rows.assign(order.begin() + static_cast<std::ptrdiff_t>(begin),
                  order.begin() + static_cast<std::ptrdiff_t>(end));  // ascending: stable
      gaps.resize(rows.size());
      for (size_t t = 0; t < rows.size(); ++t) {
        const size_t until = t + 1 < rows.size() ? rows[t + 1] : n;
        gaps[t] = static_cast<size_t>(smaller.Prefix(until) - smaller.Prefix(rows[t] + 1));
      }
      arranged.resize(rows.size());
      OrderGroup(rows, gaps, arranged.data());
      std::copy(arranged.begin(), arranged.end(),
                order.begin() + static_cast<std::ptrdiff_t>(begin));
    }
    for (size_t i = begin; i < end; ++i) smaller.Add(order[i], 1);
    begin = end;
  }
  return order;
}

}  // namespace qvx::Scripting
