// The lines of the order history as a Qt model. It counts the lines it has announced itself,
// so the core may append before the view is told and the view never sees a line early.
#pragma once

#include <QAbstractTableModel>
#include <cstddef>

class COrderHistory;

class HistoryListModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  explicit HistoryListModel(const COrderHistory& history, QObject* parent = nullptr)
      : QAbstractTableModel(parent), history_(history) {}

  void rowsAppended(size_t first, size_t count);
  void rowsReset();

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  const COrderHistory& history_;
  int shown_ = 0;
};
