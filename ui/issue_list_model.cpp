#include "ui/issue_list_model.h"

#include "issues/watch_columns.h"
#include "ui/list_look.h"

IssueListModel::IssueListModel(const CWatchView& view, WatchTab tab, QObject* parent)
    : QAbstractTableModel(parent), view_(view), tab_(tab) {
  shownRows_ = static_cast<int>(view_.rows(tab_).size());
}

int IssueListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : shownRows_;
}

int IssueListModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kWatchColumnCount;
}

QVariant IssueListModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= shownRows_) return {};
  if (role == Qt::TextAlignmentRole)
    return columnAlignment(
        QString::fromStdString(watchColumns()[static_cast<size_t>(index.column())].name));
  if (role != Qt::DisplayRole) return {};
  const sOFSCol* issue = view_.rows(tab_)[static_cast<size_t>(index.row())];
  return QString::fromStdString(watchColumnText(issue, index.column()));
}

QVariant IssueListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= kWatchColumnCount) return {};
  const ColumnDescriptor& column = watchColumns()[static_cast<size_t>(section)];
  if (role == Qt::DisplayRole) return QString::fromStdString(column.name);
  // Prices line up on the right whatever the descriptor's own alignment says.
  if (role == Qt::TextAlignmentRole) return columnAlignment(QString::fromStdString(column.name));
  return {};
}

void IssueListModel::coreChanged(int row) {
  const int now = static_cast<int>(view_.rows(tab_).size());
  if (row == 0 && now == shownRows_ + 1) {
    beginInsertRows({}, 0, 0);
    shownRows_ = now;
    endInsertRows();
    return;
  }
  beginResetModel();
  shownRows_ = now;
  endResetModel();
}
