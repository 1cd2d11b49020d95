// The docked order book: the open and completed orders, filtered to the host's active client,
// and the book's commands on the selected lines.
#pragma once

#include <QWidget>
#include <memory>
#include <vector>

#include "orderbook/order_book.h"

class BookList;
class COFSControlBlock;
class ModifyPriceDialog;
class OrderHistoryDialog;
class OrderNumberDialog;
class QLabel;
class QSortFilterProxyModel;
class QTableView;
class WatchViewWidget;

class OrderBookWidget : public QWidget, private OrderBookLauncher {
  Q_OBJECT

 public:
  OrderBookWidget(COFSControlBlock& block, WatchViewWidget& watchView, QWidget* parent = nullptr);
  ~OrderBookWidget() override;

  // An empty client removes the filter; any other shows that client's orders only.
  void filterToClient(const QString& clientId);
  // The book's Delete, also reached through the watch view's shortcut.
  void cancelSelected();
  // Closes the book's windows: they hold orders and callbacks of the control block.
  void destroyDialogs();

 private:
  QTableView* makeList(const char* name, QSortFilterProxyModel* model);
  // The summary line under `list`, following its lines as they come and go.
  QLabel* makeTotals(QTableView* list, const BookList& orders);
  void addCommands();
  void runCommand(OrderBookCommand::Id command);
  void showContextMenu(QTableView* list, const QPoint& at);
  // The list the dealer worked in last, and its lines.
  QTableView* activeList() const { return activeList_; }
  std::vector<sOFSOrderInfo*> selectedOrders(const QTableView* list) const;
  sOFSOrderInfo* focusedOrder(const QTableView* list) const;
  // The order on a line of the list as shown (after the client filter).
  sOFSOrderInfo* orderOnLine(const QTableView* list, int line) const;
  void moveFocusDown(QTableView* list);

  // The list's own menu (order_book_list_menu.cpp).
  void addListCommands();
  void writeToCsv(QTableView* list);
  void copySelection(QTableView* list);
  void customizeColumns(QTableView* list);
  void toggleGridLines(QTableView* list);

  // OrderBookLauncher
  void openOrderModification(const sOFSOrderInfo& order, const sOFSCol& issue) override;
  bool ensureModifyPriceWindow() override;
  void openModifyPrice(std::vector<sOFSOrderInfo*> orders, const std::string& heading) override;
  void openHistory(const std::string& orderNo) override;
  void askHistoryOrderNumber() override;

  COFSControlBlock& block_;
  WatchViewWidget& watchView_;
  COrderBookDlgBar book_;
  QSortFilterProxyModel* open_;
  QSortFilterProxyModel* completed_;
  QTableView* openList_ = nullptr;
  QTableView* completedList_ = nullptr;
  QTableView* activeList_ = nullptr;
  ModifyPriceDialog* modifyPrice_ = nullptr;
  OrderHistoryDialog* history_ = nullptr;
  OrderNumberDialog* orderNumber_ = nullptr;
};
