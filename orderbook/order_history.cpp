#include "orderbook/order_history.h"

#include "messaging/query_requests.h"

void COrderHistory::open(const std::string& orderNo) {
  orderNo_ = orderNo;
  title_ = "Order History for Order No.:" + orderNo;
  rows_.clear();
  selected_ = kNoRow;
  details_ = {};
  if (listener_) {
    listener_->rowsReset();
    listener_->titleChanged();
    listener_->detailsChanged();
  }
  requestOrderHistory(port_.messageLayer(), orderNo_, port_.userId());
}

void COrderHistory::addRow(std::unique_ptr<sOFSOrderInfo> row) {
  rows_.push_back(std::move(row));
  if (listener_) listener_->rowsAppended(rows_.size() - 1, 1);
}

void COrderHistory::replyEnded() {
  if (rows_.empty()) return;
  const size_t shown = selected_ < rows_.size() ? selected_ : rows_.size() - 1;
  details_ = historyDetails(*rows_[shown]);
  if (listener_) listener_->detailsChanged();
}
