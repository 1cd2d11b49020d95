#include "ui/basket_list_model.h"

#include "basket/basket_file.h"
#include "ui/list_look.h"

int BasketListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(screen_.rowCount());
}

int BasketListModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(basketColumns().size());
}

QVariant BasketListModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || static_cast<size_t>(index.row()) >= screen_.rowCount()) return {};
  const auto row = static_cast<size_t>(index.row());
  if (role == Qt::CheckStateRole && index.column() == 0)
    return screen_.ticked(row) ? Qt::Checked : Qt::Unchecked;
  if (role == Qt::TextAlignmentRole)
    return columnAlignment(basketColumns()[static_cast<size_t>(index.column())]);
  if (role != Qt::DisplayRole) return {};
  return QString::fromStdString(basketColumnText(screen_.row(row), index.column()));
}

bool BasketListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::CheckStateRole || index.column() != 0) return false;
  screen_.setTicked(static_cast<size_t>(index.row()), value.value<Qt::CheckState>() == Qt::Checked);
  return true;
}

Qt::ItemFlags BasketListModel::flags(const QModelIndex& index) const {
  Qt::ItemFlags flags = QAbstractTableModel::flags(index);
  if (index.column() == 0) flags |= Qt::ItemIsUserCheckable;
  return flags;
}

QVariant BasketListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
  const char* title = basketColumns()[static_cast<size_t>(section)];
  if (role == Qt::TextAlignmentRole) return columnAlignment(title);
  return role == Qt::DisplayRole ? QVariant(QString(title)) : QVariant();
}

void BasketListModel::refresh() {
  beginResetModel();
  endResetModel();
}
