// The docked order book: the open and completed orders, filtered to the host's active client.
#pragma once

#include <QWidget>

class COFSControlBlock;
class QSortFilterProxyModel;

class OrderBookWidget : public QWidget {
  Q_OBJECT

 public:
  OrderBookWidget(COFSControlBlock& block, QWidget* parent = nullptr);
  ~OrderBookWidget() override;

  // An empty client removes the filter; any other shows that client's orders only.
  void filterToClient(const QString& clientId);

 private:
  COFSControlBlock& block_;
  QSortFilterProxyModel* open_;
  QSortFilterProxyModel* completed_;
};
