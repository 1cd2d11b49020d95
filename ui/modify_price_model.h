// The orders of the modify-price window as a Qt model over the screen's lines.
#pragma once

#include <QAbstractTableModel>

class CModifyOrderPrice;

class ModifyPriceModel : public QAbstractTableModel {
 public:
  explicit ModifyPriceModel(const CModifyOrderPrice& screen, QObject* parent = nullptr)
      : QAbstractTableModel(parent), screen_(screen) {}

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  // Around the screen's replacing of its lines.
  void resetting() { beginResetModel(); }
  void reset() { endResetModel(); }

 private:
  const CModifyOrderPrice& screen_;
};
