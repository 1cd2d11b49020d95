// One list of the order book as a Qt model that follows the core list line by line, so a
// million orders cost nothing until their lines are drawn.
#pragma once

#include <QAbstractTableModel>
#include <functional>
#include <string>

#include "domain/book_list.h"

class BookListModel : public QAbstractTableModel, private BookListListener {
  Q_OBJECT

 public:
  // `refused` says which orders the dealer can no longer modify or cancel: they read dimmed.
  BookListModel(BookList& list, std::function<std::string(const std::string&)> clientName,
                std::function<bool(const sOFSOrderInfo&)> refused, QObject* parent = nullptr);
  ~BookListModel() override;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  // The order on a line of this model; null past the end.
  sOFSOrderInfo* orderAt(int row) const {
    return row < 0 ? nullptr : list_.rowAt(static_cast<size_t>(row));
  }

 private:
  void beforeInsert(size_t row) override;
  void afterInsert() override;
  void beforeRemove(size_t row) override;
  void afterRemove() override;
  void rowChanged(size_t row) override;
  void beforeReset() override;
  void afterReset() override;

  BookList& list_;
  std::function<std::string(const std::string&)> clientName_;
  std::function<bool(const sOFSOrderInfo&)> refused_;
};
