#include "ui/book_list_model.h"

#include "orderbook/order_book_columns.h"

BookListModel::BookListModel(BookList& list,
                             std::function<std::string(const std::string&)> clientName,
                             QObject* parent)
    : QAbstractTableModel(parent), list_(list), clientName_(std::move(clientName)) {
  list_.setListener(this);
}

BookListModel::~BookListModel() {
  list_.setListener(nullptr);
}

int BookListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(list_.rowCount());
}

int BookListModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kOrderBookColumnCount;
}

QVariant BookListModel::data(const QModelIndex& index, int role) const {
  if (role != Qt::DisplayRole || !index.isValid()) return {};
  const sOFSOrderInfo* order = list_.rowAt(static_cast<size_t>(index.row()));
  if (!order) return {};
  return QString::fromStdString(orderBookColumnText(*order, index.column(), clientName_));
}

QVariant BookListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole || orientation != Qt::Horizontal || section < 0 ||
      section >= kOrderBookColumnCount)
    return {};
  return QString(orderBookColumns()[static_cast<size_t>(section)]);
}

void BookListModel::beforeInsert(size_t row) {
  beginInsertRows({}, static_cast<int>(row), static_cast<int>(row));
}
void BookListModel::afterInsert() {
  endInsertRows();
}
void BookListModel::beforeRemove(size_t row) {
  beginRemoveRows({}, static_cast<int>(row), static_cast<int>(row));
}
void BookListModel::afterRemove() {
  endRemoveRows();
}
void BookListModel::rowChanged(size_t row) {
  const int r = static_cast<int>(row);
  emit dataChanged(index(r, 0), index(r, kOrderBookColumnCount - 1));
}
void BookListModel::beforeReset() {
  beginResetModel();
}
void BookListModel::afterReset() {
  endResetModel();
}
