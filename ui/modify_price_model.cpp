#include "ui/modify_price_model.h"

#include "orderbook/modify_order_price.h"
#include "ui/list_look.h"

int ModifyPriceModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : screen_.rowCount();
}

int ModifyPriceModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : CModifyOrderPrice::kColumnCount;
}

QVariant ModifyPriceModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  if (role == Qt::TextAlignmentRole)
    return columnAlignment(CModifyOrderPrice::columns()[static_cast<size_t>(index.column())]);
  if (role != Qt::DisplayRole) return {};
  return QString::fromStdString(screen_.columnText(index.row(), index.column()));
}

QVariant ModifyPriceModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= CModifyOrderPrice::kColumnCount)
    return {};
  const char* title = CModifyOrderPrice::columns()[static_cast<size_t>(section)];
  if (role == Qt::TextAlignmentRole) return columnAlignment(title);
  return role == Qt::DisplayRole ? QVariant(QString(title)) : QVariant();
}
