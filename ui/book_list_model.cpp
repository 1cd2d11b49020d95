#include "ui/book_list_model.h"

#include <QFont>

#include "orderbook/order_book_columns.h"
#include "ui/list_look.h"

BookListModel::BookListModel(BookList& list,
                             std::function<std::string(const std::string&)> clientName,
                             std::function<bool(const sOFSOrderInfo&)> refused, QObject* parent)
    : QAbstractTableModel(parent),
      list_(list),
      clientName_(std::move(clientName)),
      refused_(std::move(refused)) {
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
  if (!index.isValid()) return {};
  const sOFSOrderInfo* order = list_.rowAt(static_cast<size_t>(index.row()));
  if (!order) return {};
  switch (role) {
    case Qt::DisplayRole:
      return QString::fromStdString(orderBookColumnText(*order, index.column(), clientName_));
    case Qt::TextAlignmentRole:
      return columnAlignment(orderBookColumns()[static_cast<size_t>(index.column())]);
    case Qt::BackgroundRole: {
      const QColor tint = statusTint(order->status);
      return tint.isValid() ? QVariant(tint) : QVariant();
    }
    case Qt::ForegroundRole:
      return refused_ && refused_(*order) ? QVariant(blockedText()) : QVariant();
    case Qt::FontRole:
      if (refused_ && refused_(*order)) {
        QFont italic;
        italic.setItalic(true);
        return italic;
      }
      return {};
    default:
      return {};
  }
}

QVariant BookListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= kOrderBookColumnCount) return {};
  const char* title = orderBookColumns()[static_cast<size_t>(section)];
  if (role == Qt::TextAlignmentRole) return columnAlignment(title);
  return role == Qt::DisplayRole ? QVariant(QString(title)) : QVariant();
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
