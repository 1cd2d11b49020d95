#include "orderbook/live_slots.h"

#include <bit>

// Each node passes its sum to its parent: a linear build.
void LiveSlots::buildSums() {
  size_t capacity = this->capacity();
  for (size_t i = 1; i <= capacity; ++i) {
    size_t parent = i + (i & (~i + 1));
    if (parent <= capacity) tree_[parent] += tree_[i];
  }
}

void LiveSlots::add(size_t slot, int32_t delta) {
  for (size_t i = slot + 1; i < tree_.size(); i += i & (~i + 1)) tree_[i] += delta;
}

size_t LiveSlots::countThrough(size_t slot) const {
  int64_t sum = 0;
  for (size_t i = slot + 1; i > 0; i -= i & (~i + 1)) sum += tree_[i];
  return static_cast<size_t>(sum);
}

size_t LiveSlots::kth(size_t k) const {
  size_t pos = 0;
  for (size_t step = std::bit_floor(capacity()); step > 0; step >>= 1) {
    if (pos + step < tree_.size() && static_cast<size_t>(tree_[pos + step]) < k) {
      pos += step;
      k -= static_cast<size_t>(tree_[pos]);
    }
  }
  return pos;  // 1-based pos + 1, back to 0-based
}
