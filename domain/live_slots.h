// Counts the live slots of a list whose lines are deleted in place, so that the n-th live
// line and the position of a slot are found in O(log n). One bit per slot; blocks of 512 slots
// (one cache line of bits) are summed in a Fenwick tree small enough to stay in cache, so that
// changing a slot touches one line of memory however long the list is.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

class LiveSlots {
 public:
  // At least `capacity` slots; slot i is live when isLive(i), for i below `used`. Linear time.
  template <class IsLive>
  void reset(size_t capacity, size_t used, IsLive isLive) {
    size_t blocks = (capacity + kBlockSlots - 1) / kBlockSlots;
    words_.assign(blocks * kWordsPerBlock, 0);
    for (size_t i = 0; i < used; ++i)
      if (isLive(i)) words_[i / 64] |= uint64_t{1} << (i % 64);
    buildBlockSums();
  }
  size_t capacity() const { return words_.size() * 64; }

  void set(size_t slot);
  void unset(size_t slot);
  // Live slots among 0..slot.
  size_t countThrough(size_t slot) const;
  // The slot of the k-th live slot, k from 1 up to the number of live slots.
  size_t kth(size_t k) const;

 private:
  static constexpr size_t kWordsPerBlock = 8;
  static constexpr size_t kBlockSlots = kWordsPerBlock * 64;

  void addToBlock(size_t block, int32_t delta);
  void buildBlockSums();

  std::vector<uint64_t> words_;
  std::vector<int32_t> blockTree_;  // Fenwick tree of live counts per block, 1-based
};
