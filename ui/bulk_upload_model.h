// The bulk upload screen's lists as Qt models: the grid of the selected kind and the refused
// lines. Both read the screen's rows in place, so a million rows cost nothing until drawn.
#pragma once

#include <QAbstractListModel>
#include <QAbstractTableModel>

#include "basket/bulk_upload.h"

class BulkGridModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  explicit BulkGridModel(CBulkUpload& screen, QObject* parent = nullptr)
      : QAbstractTableModel(parent), screen_(screen) {}

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  // The screen's rows or kind changed: show them afresh.
  void refresh();

 private:
  CBulkUpload& screen_;
};

class BulkRefusedModel : public QAbstractListModel {
  Q_OBJECT

 public:
  explicit BulkRefusedModel(CBulkUpload& screen, QObject* parent = nullptr)
      : QAbstractListModel(parent), screen_(screen) {}

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  void refresh();

 private:
  CBulkUpload& screen_;
};
