#include "domain/live_slots.h"

#include <bit>

void LiveSlots::buildBlockSums() {
  size_t blocks = words_.size() / kWordsPerBlock;
  blockTree_.assign(blocks + 1, 0);
  for (size_t w = 0; w < words_.size(); ++w)
    blockTree_[w / kWordsPerBlock + 1] += std::popcount(words_[w]);
  // Each node passes its sum to its parent: a linear build.
  for (size_t i = 1; i <= blocks; ++i) {
    size_t parent = i + (i & (~i + 1));
    if (parent <= blocks) blockTree_[parent] += blockTree_[i];
  }
}

void LiveSlots::addToBlock(size_t block, int32_t delta) {
  for (size_t i = block + 1; i < blockTree_.size(); i += i & (~i + 1)) blockTree_[i] += delta;
}

void LiveSlots::set(size_t slot) {
  words_[slot / 64] |= uint64_t{1} << (slot % 64);
  addToBlock(slot / kBlockSlots, 1);
}

void LiveSlots::unset(size_t slot) {
  words_[slot / 64] &= ~(uint64_t{1} << (slot % 64));
  addToBlock(slot / kBlockSlots, -1);
}

size_t LiveSlots::countThrough(size_t slot) const {
  size_t block = slot / kBlockSlots;
  int64_t count = 0;
  for (size_t i = block; i > 0; i -= i & (~i + 1)) count += blockTree_[i];
  size_t word = slot / 64;
  for (size_t w = block * kWordsPerBlock; w < word; ++w) count += std::popcount(words_[w]);
  uint64_t through = ~uint64_t{0} >> (63 - slot % 64);
  return static_cast<size_t>(count + std::popcount(words_[word] & through));
}

size_t LiveSlots::kth(size_t k) const {
  size_t block = 0;
  for (size_t step = std::bit_floor(blockTree_.size() - 1); step > 0; step >>= 1) {
    if (block + step < blockTree_.size() && static_cast<size_t>(blockTree_[block + step]) < k) {
      block += step;
      k -= static_cast<size_t>(blockTree_[block]);
    }
  }
  size_t word = block * kWordsPerBlock;
  for (; static_cast<size_t>(std::popcount(words_[word])) < k; ++word)
    k -= static_cast<size_t>(std::popcount(words_[word]));
  uint64_t bits = words_[word];
  for (; k > 1; --k) bits &= bits - 1;  // drop the lower live slots
  return word * 64 + static_cast<size_t>(std::countr_zero(bits));
}
