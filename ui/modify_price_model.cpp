#include "ui/modify_price_model.h"

#include "orderbook/modify_order_price.h"

int ModifyPriceModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : screen_.rowCount();
}

int ModifyPriceModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : CModifyOrderPrice::kColumnCount;
}

QVariant ModifyPriceModel::data(const QModelIndex& index, int role) const {
  if (role != Qt::DisplayRole || !index.isValid()) return {};
  return QString::fromStdString(screen_.columnText(index.row(), index.column()));
}

QVariant ModifyPriceModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole || orientation != Qt::Horizontal) return {};
  if (section < 0 || section >= CModifyOrderPrice::kColumnCount) return {};
  return QString(CModifyOrderPrice::columns()[static_cast<size_t>(section)]);
}
