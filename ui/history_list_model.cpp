#include "ui/history_list_model.h"

#include "orderbook/order_history.h"
#include "ui/list_look.h"

void HistoryListModel::rowsAppended(size_t first, size_t count) {
  if (count == 0) return;
  beginInsertRows({}, static_cast<int>(first), static_cast<int>(first + count - 1));
  shown_ = static_cast<int>(first + count);
  endInsertRows();
}

void HistoryListModel::rowsReset() {
  beginResetModel();
  shown_ = static_cast<int>(history_.rowCount());
  endResetModel();
}

int HistoryListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : shown_;
}

int HistoryListModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kHistoryColumnCount;
}

QVariant HistoryListModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= shown_) return {};
  if (role == Qt::TextAlignmentRole)
    return columnAlignment(historyColumns()[static_cast<size_t>(index.column())]);
  if (role != Qt::DisplayRole) return {};
  return QString::fromStdString(
      history_.cellText(static_cast<size_t>(index.row()), index.column()));
}

QVariant HistoryListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= kHistoryColumnCount) return {};
  const char* title = historyColumns()[static_cast<size_t>(section)];
  if (role == Qt::TextAlignmentRole) return columnAlignment(title);
  return role == Qt::DisplayRole ? QVariant(QString(title)) : QVariant();
}
