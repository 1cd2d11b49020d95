#include "domain/book_list.h"

#include <algorithm>

namespace {

constexpr size_t kMinCapacity = 64;

}  // namespace

// A line of an earlier generation was forgotten by a reset; a deleted line has no slot.
std::optional<size_t> BookList::slotOf(const sOFSOrderInfo* order) const {
  const sOFSOrderInfo::BookLine& line = order->bookLine[which_];
  if (line.generation != generation_ || line.slot == UINT32_MAX) return std::nullopt;
  return line.slot;
}

sOFSOrderInfo* BookList::rowAt(size_t row) const {
  if (row >= count_) return nullptr;
  return slots_[live_.kth(count_ - row)];
}

std::optional<size_t> BookList::rowOf(const sOFSOrderInfo* order) const {
  std::optional<size_t> slot = slotOf(order);
  if (!slot) return std::nullopt;
  return count_ - live_.countThrough(*slot);
}

void BookList::insertTop(sOFSOrderInfo* order) {
  if (contains(order)) return;
  if (listener_) listener_->beforeInsert(0);
  if (slots_.size() == live_.capacity()) makeRoom();
  size_t slot = slots_.size();
  slots_.push_back(order);
  place(order, slot);
  live_.set(slot);
  ++count_;
  if (listener_) listener_->afterInsert();
}

void BookList::remove(sOFSOrderInfo* order) {
  std::optional<size_t> slot = slotOf(order);
  if (!slot) return;
  if (listener_) listener_->beforeRemove(count_ - live_.countThrough(*slot));
  slots_[*slot] = nullptr;
  order->bookLine[which_].slot = UINT32_MAX;
  live_.unset(*slot);
  --count_;
  if (listener_) listener_->afterRemove();
}

void BookList::repaint(const sOFSOrderInfo* order) {
  std::optional<size_t> row = rowOf(order);
  if (row && listener_) listener_->rowChanged(*row);
}

void BookList::reset(const std::vector<sOFSOrderInfo*>& insertionOrder) {
  if (listener_) listener_->beforeReset();
  ++generation_;
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
  live_.reset(capacity, slots_.size(), [this](size_t slot) { return slots_[slot] != nullptr; });
  slots_.reserve(live_.capacity());
}

// Every slot moves, no row does.
void BookList::compact(size_t capacity) {
  std::erase(slots_, nullptr);
  for (size_t slot = 0; slot < slots_.size(); ++slot) place(slots_[slot], slot);
  live_.reset(capacity, slots_.size(), [](size_t) { return true; });
  slots_.reserve(live_.capacity());
}
