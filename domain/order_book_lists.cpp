#include "domain/order_book_lists.h"

#include <algorithm>
#include <cstring>

namespace {

// The order's line must be in the open list, and, once closed, in the closed list only.
void moveKnownOrder(sOFSOrderInfo& order, OrderBookLists& book) {
  if (book.open.contains(&order)) {
    book.open.repaint(&order);
  } else {
    book.open.insertTop(&order);
    book.closed.remove(&order);
  }
  if (!isClosedStatus(order.status)) return;
  if (book.closed.contains(&order))
    book.closed.repaint(&order);
  else
    book.closed.insertTop(&order);
  book.open.remove(&order);
}

// An order with the first 16 bytes of its number, zero-padded and big-endian, so that most
// comparisons of the sort touch neither the record nor the string.
struct SortEntry {
  uint64_t high;
  uint64_t low;
  sOFSOrderInfo* order;
};

uint64_t bigEndianWord(const std::string& text, size_t from) {
  unsigned char bytes[8] = {};
  if (from < text.size())
    std::memcpy(bytes, text.data() + from, std::min<size_t>(8, text.size() - from));
  uint64_t word = 0;
  for (unsigned char byte : bytes) word = word << 8 | byte;
  return word;
}

// Byte-wise order of the order numbers: the padded prefixes decide unless they are equal.
bool numberedBefore(const SortEntry& a, const SortEntry& b) {
  if (a.high != b.high) return a.high < b.high;
  if (a.low != b.low) return a.low < b.low;
  return a.order->ofsOrderNo < b.order->ofsOrderNo;
}

// Walks the orders in order of arrival, the order they lie in memory.
std::vector<SortEntry> sortedByNumber(const std::vector<sOFSOrderInfo*>& orders) {
  std::vector<SortEntry> entries;
  entries.reserve(orders.size());
  for (sOFSOrderInfo* order : orders) {
    const std::string& key = order->ofsOrderNo;
    entries.push_back({bigEndianWord(key, 0), bigEndianWord(key, 8), order});
  }
  std::sort(entries.begin(), entries.end(), numberedBefore);
  return entries;
}

}  // namespace

bool isOpenStatus(const std::string& status) {
  return status == "open" || status == "open pending";
}

bool isClosedStatus(const std::string& status) {
  return status == "cancelled" || status == "rejected" || status == "complete";
}

void placeUpdatedOrder(sOFSOrderInfo& order, bool created, OrderBookLists& book) {
  if (!created) return moveKnownOrder(order, book);
  (isOpenStatus(order.status) ? book.open : book.closed).insertTop(&order);
}

void rebuildOrderBook(const OFSRecords& records, OrderBookLists& book) {
  std::vector<sOFSOrderInfo*> open;
  std::vector<sOFSOrderInfo*> closed;
  for (const SortEntry& entry : sortedByNumber(records.orderArrivals))
    (isOpenStatus(entry.order->status) ? open : closed).push_back(entry.order);
  book.open.reset(open);
  book.closed.reset(closed);
}
