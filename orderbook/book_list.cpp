#include "orderbook/book_list.h"

#include <algorithm>

namespace {

constexpr size_t kMinCapacity = 64;

}  // namespace

sOFSOrderInfo* BookList::rowAt(size_t row) const {
  if (row >= count_) return nullptr;
  return slots_[live_.kth(count_ - row)];
}

std::optional<size_t> BookList::rowOf(const sOFSOrderInfo* order) const {
  auto it = slotOf_.find(order);
  if (it == slotOf_.end()) return std::nullopt;
  return count_ - live_.countThrough(it->second);
}

void BookList::insertTop(sOFSOrderInfo* order) {
  if (contains(order)) return;
  if (listener_) listener_->beforeInsert(0);
  if (slots_.size() == live_.capacity()) makeRoom();
  size_t slot = slots_.size();
  slots_.push_back(order);
  slotOf_.emplace(order, slot);
  live_.set(slot);
  ++count_;
  if (listener_) listener_->afterInsert();
}

void BookList::remove(const sOFSOrderInfo* order) {
  auto it = slotOf_.find(order);
  if (it == slotOf_.end()) return;
  size_t slot = it->second;
  if (listener_) listener_->beforeRemove(count_ - live_.countThrough(slot));
  slots_[slot] = nullptr;
  live_.unset(slot);
  slotOf_.erase(it);
  --count_;
  if (listener_) listener_->afterRemove();
}

void BookList::repaint(const sOFSOrderInfo* order) {
  std::optional<size_t> row = rowOf(order);
  if (row && listener_) listener_->rowChanged(*row);
}

void BookList::reset(const std::vector<sOFSOrderInfo*>& insertionOrder) {
  if (listener_) listener_->beforeReset();
  slots_ = insertionOrder;
  count_ = slots_.size();
  compact(std::max(kMinCapacity, 2 * count_));
  if (listener_) listener_->afterReset();
}

// Every slot is used: drop the deleted ones when they are many, else only grow. Either way
// each call is followed by at least as many inserts as it touched slots.
void BookList::makeRoom() {
  size_t capacity = std::max(kMinCapacity, 2 * count_ + 1);
  if (slots_.size() - count_ >= count_ / 2) return compact(capacity);
  slots_.reserve(capacity);
  live_.reset(capacity, slots_.size(), [this](size_t slot) { return slots_[slot] != nullptr; });
}

// Every slot moves, no row does.
void BookList::compact(size_t capacity) {
  std::erase(slots_, nullptr);
  slots_.reserve(capacity);
  slotOf_.clear();
  slotOf_.reserve(slots_.size());
  for (size_t slot = 0; slot < slots_.size(); ++slot) slotOf_.emplace(slots_[slot], slot);
  live_.reset(capacity, slots_.size(), [](size_t) { return true; });
}
