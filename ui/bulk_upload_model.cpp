#include "ui/bulk_upload_model.h"

#include "basket/bulk_grid_columns.h"
#include "ui/list_look.h"

int BulkGridModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(screen_.rows().size());
}

int BulkGridModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(bulkGridColumns(screen_.kind()).size());
}

QVariant BulkGridModel::data(const QModelIndex& index, int role) const {
  const auto row = static_cast<size_t>(index.row());
  const auto column = static_cast<size_t>(index.column());
  const auto& columns = bulkGridColumns(screen_.kind());
  if (row >= screen_.rows().size() || column >= columns.size()) return {};
  if (role == Qt::TextAlignmentRole) return columnAlignment(columns[column].title);
  if (role != Qt::DisplayRole) return {};
  return QString::fromStdString(bulkCellText(screen_.rows()[row], columns[column]));
}

QVariant BulkGridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  const auto& columns = bulkGridColumns(screen_.kind());
  if (orientation != Qt::Horizontal || section < 0 ||
      static_cast<size_t>(section) >= columns.size()) {
    return {};
  }
  const char* title = columns[static_cast<size_t>(section)].title;
  if (role == Qt::TextAlignmentRole) return columnAlignment(title);
  return role == Qt::DisplayRole ? QVariant(QString(title)) : QVariant();
}

void BulkGridModel::refresh() {
  beginResetModel();
  endResetModel();
}

int BulkRefusedModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(screen_.refusedLines().size());
}

QVariant BulkRefusedModel::data(const QModelIndex& index, int role) const {
  const auto row = static_cast<size_t>(index.row());
  if (role != Qt::DisplayRole || row >= screen_.refusedLines().size()) return {};
  return QString::fromStdString(screen_.refusedLines()[row]);
}

void BulkRefusedModel::refresh() {
  beginResetModel();
  endResetModel();
}
