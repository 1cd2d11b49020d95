#include "orderbook/order_book_lists.h"

#include <algorithm>

#include "domain/order_fill.h"

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

}  // namespace

bool isOpenStatus(const std::string& status) {
  return status == "open" || status == "open pending";
}

bool isClosedStatus(const std::string& status) {
  return status == "cancelled" || status == "rejected" || status == "complete";
}

void applyOrderUpdate(RecordMap<sOFSOrderInfo>& orders, OrderBookLists& book,
                      const MessageView& row) {
  std::string orderNo;
  if (!row.text(64001, 0, orderNo)) return;
  auto [it, created] = orders.try_emplace(orderNo);
  if (created) it->second = std::make_unique<sOFSOrderInfo>();
  sOFSOrderInfo& order = *it->second;
  fillReportedOrder(row, order);
  if (!created) return moveKnownOrder(order, book);
  (isOpenStatus(order.status) ? book.open : book.closed).insertTop(&order);
}

void rebuildOrderBook(const RecordMap<sOFSOrderInfo>& orders, OrderBookLists& book) {
  std::vector<sOFSOrderInfo*> all;
  all.reserve(orders.size());
  for (const auto& entry : orders) all.push_back(entry.second.get());
  std::sort(all.begin(), all.end(), [](const sOFSOrderInfo* a, const sOFSOrderInfo* b) {
    return a->ofsOrderNo < b->ofsOrderNo;
  });
  std::vector<sOFSOrderInfo*> open;
  std::vector<sOFSOrderInfo*> closed;
  for (sOFSOrderInfo* order : all) (isOpenStatus(order->status) ? open : closed).push_back(order);
  book.open.reset(open);
  book.closed.reset(closed);
}
