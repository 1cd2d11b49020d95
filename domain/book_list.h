// One list of the order book ("Open Orders" or "Completed Orders"). Each line points at an
// order owned by the orders map; row 0 is the top line. Inserting at the top, finding a
// record's line and deleting a line cost O(log n) at most, so a live update stays cheap
// however long the book is.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "domain/live_slots.h"
#include "domain/records.h"

// Told of every change, before and after, so that a list model can follow.
class BookListListener {
 public:
  virtual void beforeInsert(size_t /*row*/) {}
  virtual void afterInsert() {}
  virtual void beforeRemove(size_t /*row*/) {}
  virtual void afterRemove() {}
  virtual void rowChanged(size_t /*row*/) {}
  virtual void beforeReset() {}
  virtual void afterReset() {}

 protected:
  ~BookListListener() = default;
};

class BookList {
 public:
  // `which` picks the record's bookLine entry this list keeps: each list of a book its own.
  explicit BookList(size_t which) : which_(which) {}
  void setListener(BookListListener* listener) { listener_ = listener; }

  size_t rowCount() const { return count_; }
  // The order on line `row` (0 is the top); null past the end.
  sOFSOrderInfo* rowAt(size_t row) const;
  std::optional<size_t> rowOf(const sOFSOrderInfo* order) const;
  bool contains(const sOFSOrderInfo* order) const { return slotOf(order).has_value(); }
  // Every listed order, in no particular order, at a pointer's cost each: for sums over a list.
  template <typename Visit>
  void forEachOrder(Visit&& visit) const {
    for (const sOFSOrderInfo* order : slots_)
      if (order) visit(*order);
  }

  // Puts a record that is not yet listed on a new top line.
  void insertTop(sOFSOrderInfo* order);
  // Deletes the record's line; nothing when it has none.
  void remove(sOFSOrderInfo* order);
  // Tells the listener that the record's line shows new values.
  void repaint(const sOFSOrderInfo* order);
  // Replaces every line: each record is put on top in turn, so the last is the top line.
  void reset(const std::vector<sOFSOrderInfo*>& insertionOrder);
  void clear() { reset({}); }

 private:
  std::optional<size_t> slotOf(const sOFSOrderInfo* order) const;
  void makeRoom();
  void compact(size_t capacity);
  void place(sOFSOrderInfo* order, size_t slot) {
    order->bookLine[which_] = {static_cast<uint32_t>(slot), generation_};
  }

  std::vector<sOFSOrderInfo*> slots_;  // in insertion order; null where a line was deleted
  size_t which_;
  uint32_t generation_ = 1;  // a reset forgets every line without touching the records
  LiveSlots live_;
  size_t count_ = 0;
  BookListListener* listener_ = nullptr;
};
