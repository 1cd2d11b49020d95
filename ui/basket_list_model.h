// The basket's rows as a Qt model: a tick box on each row's first column.
#pragma once

#include <QAbstractTableModel>

#include "basket/basket_manager.h"

class BasketListModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  explicit BasketListModel(CBasketManagerOFS& screen, QObject* parent = nullptr)
      : QAbstractTableModel(parent), screen_(screen) {}

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  // The screen's rows changed: show them afresh.
  void refresh();

 private:
  CBasketManagerOFS& screen_;
};
