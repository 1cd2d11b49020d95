// The history of one OFS order: a line per state the order went through, as the exchange
// reports them, and under the list a details block of the order.
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "domain/records.h"
#include "orderbook/order_book_port.h"
#include "orderbook/order_history_columns.h"

// What a view of the history follows. Rows are only ever appended, or all dropped at once.
class OrderHistoryListener {
 public:
  // Rows first .. first + count - 1 were appended.
  virtual void rowsAppended(size_t first, size_t count) = 0;
  // Every row is gone (a new order was opened).
  virtual void rowsReset() = 0;
  virtual void titleChanged() = 0;
  virtual void detailsChanged() = 0;

 protected:
  ~OrderHistoryListener() = default;
};

class COrderHistory {
 public:
  explicit COrderHistory(OrderBookPort& port) : port_(port) {}

  void setListener(OrderHistoryListener* listener) { listener_ = listener; }

  // Shows `orderNo`'s history afresh: old lines and details go, the request is sent.
  void open(const std::string& orderNo);
  void addRow(std::unique_ptr<sOFSOrderInfo> row);
  // The line the user selected in the list; kNoRow when none.
  void selectRow(size_t row) { selected_ = row; }
  // The reply is complete: the details come from the selected line, else the last one.
  void replyEnded();

  static constexpr size_t kNoRow = static_cast<size_t>(-1);

  const std::string& orderNo() const { return orderNo_; }
  const std::string& title() const { return title_; }
  size_t rowCount() const { return rows_.size(); }
  const sOFSOrderInfo& row(size_t index) const { return *rows_[index]; }
  std::string cellText(size_t row, int column) const {
    return historyColumnText(*rows_[row], column);
  }
  // The values beside historyDetailLabels(); empty until a reply ended with a line.
  const std::array<std::string, kHistoryDetailCount>& details() const { return details_; }

 private:
  OrderBookPort& port_;
  OrderHistoryListener* listener_ = nullptr;
  std::string orderNo_;
  std::string title_;
  std::vector<std::unique_ptr<sOFSOrderInfo>> rows_;
  size_t selected_ = kNoRow;
  std::array<std::string, kHistoryDetailCount> details_;
};
