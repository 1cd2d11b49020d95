// Counts the live slots of a list whose lines are deleted in place, so that the n-th live
// line and the position of a slot are found in O(log n) (a Fenwick tree over live flags).
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

class LiveSlots {
 public:
  // `capacity` slots; slot i is live when isLive(i), for i below `used`. Linear time.
  template <class IsLive>
  void reset(size_t capacity, size_t used, IsLive isLive) {
    tree_.assign(capacity + 1, 0);
    for (size_t i = 0; i < used; ++i) tree_[i + 1] = isLive(i) ? 1 : 0;
    buildSums();
  }
  size_t capacity() const { return tree_.empty() ? 0 : tree_.size() - 1; }

  void set(size_t slot) { add(slot, 1); }
  void unset(size_t slot) { add(slot, -1); }
  // Live slots among 0..slot.
  size_t countThrough(size_t slot) const;
  // The slot of the k-th live slot, k from 1.
  size_t kth(size_t k) const;

 private:
  void add(size_t slot, int32_t delta);
  void buildSums();
  std::vector<int32_t> tree_;  // 1-based
};
