// Rows that create order records: the order book replies, the filter and the history.
#include "messaging/dispatch_steps.h"
#include "messaging/history_row.h"
#include "messaging/order_fill.h"

void handleReportedOrderRow(DispatchContext& context, const MessageView& row) {
  std::string orderNo;
  if (!row.text(64001, 0, orderNo) || !row.has(63100)) return;
  // A reply only adds orders it does not know; changes come by live update.
  auto [order, created] = findOrAddOrder(context.records(), orderNo);
  if (created) fillReportedOrder(row, *order);
}

void handleOrderUpdate(DispatchContext& context, const MessageView& update) {
  std::string orderNo;
  if (!update.text(64001, 0, orderNo)) return;
  auto [order, created] = findOrAddOrder(context.records(), orderNo);
  fillReportedOrder(update, *order);
  placeUpdatedOrder(*order, created, context.orderBook());
}

void handleFilteredOrderRow(DispatchContext& context, const MessageView& row) {
  auto order = std::make_unique<sOFSOrderInfo>();
  fillFilteredOrder(row, *order);
  context.records().filteredOrders[order->ofsOrderNo] = std::move(order);
}

void handleHistoryRow(DispatchContext& context, const MessageView& row) {
  auto line = std::make_unique<sOFSOrderInfo>();
  if (fillHistoryRow(row, *line)) context.historyRowAdded(std::move(line));
}

void handlePeerDataRow(DispatchContext& context, const MessageView& row) {
  context.storePeerData(row.text(28561));
}
