// The order history window: the history lines of one order and its details block, following
// the history replies the dispatcher hands the control block while the window lives.
#pragma once

#include <QDialog>
#include <array>
#include <string>

#include "orderbook/order_history.h"

class COFSControlBlock;
class HistoryListModel;
class QLabel;
class QTableView;

class OrderHistoryDialog : public QDialog, private OrderHistoryListener {
  Q_OBJECT

 public:
  OrderHistoryDialog(COFSControlBlock& block, QWidget* parent = nullptr);
  ~OrderHistoryDialog() override;

  // Asks for the order's history and brings the window to the front.
  void openFor(const std::string& orderNo);
  const COrderHistory& history() const { return history_; }
  // Where the prompts of the history's own screens speak.
  PromptPort& prompt();

 private:
  void rowsAppended(size_t first, size_t count) override;
  void rowsReset() override;
  void titleChanged() override;
  void detailsChanged() override;
  QLayout* makeDetails();

  COFSControlBlock& block_;
  COrderHistory history_;
  HistoryListModel* model_;
  QTableView* table_;
  std::array<QLabel*, kHistoryDetailCount> values_{};
};
