// One tab of the watch view as a Qt model: rows are the core view's issues, top first.
#pragma once

#include <QAbstractTableModel>

#include "issues/watch_view.h"

class IssueListModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  IssueListModel(const CWatchView& view, WatchTab tab, QObject* parent = nullptr);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  // The core inserted a row at the top (row 0) or asks for a full repaint (row -1).
  void coreChanged(int row);

 private:
  const CWatchView& view_;
  WatchTab tab_;
  int shownRows_ = 0;
};
