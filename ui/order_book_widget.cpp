#include "ui/order_book_widget.h"

#include <QHeaderView>
#include <QLabel>
#include <QRegularExpression>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QVBoxLayout>

#include "orderbook/order_book_columns.h"
#include "plugin/control_block.h"
#include "plugin/lifecycle.h"
#include "ui/book_list_model.h"
#include "ui/list_memory.h"

namespace {

QTableView* makeList(QWidget* parent, const char* name, QSortFilterProxyModel* model) {
  auto* list = new QTableView(parent);
  list->setObjectName(name);
  list->setModel(model);
  list->setSelectionBehavior(QAbstractItemView::SelectRows);
  list->setEditTriggers(QAbstractItemView::NoEditTriggers);
  list->verticalHeader()->hide();
  list->verticalHeader()->setDefaultSectionSize(20);
  list->horizontalHeader()->setSectionsMovable(true);
  restoreColumns(list->horizontalHeader(), QString("OFSOrderBook_") + name);
  return list;
}

}  // namespace

OrderBookWidget::OrderBookWidget(COFSControlBlock& block, QWidget* parent)
    : QWidget(parent), block_(block) {
  setObjectName("OrderBook");
  setProperty("dumpName", "order-book");
  setProperty("dumpLists", QStringList{"open", "completed"});
  auto clientName = [&block](const std::string& client) {
    std::string name;
    if (block.services.getClientName && !client.empty()) block.services.getClientName(client, name);
    return name;
  };
  open_ = new QSortFilterProxyModel(this);
  open_->setSourceModel(new BookListModel(block.bookLists.open, clientName, open_));
  completed_ = new QSortFilterProxyModel(this);
  completed_->setSourceModel(new BookListModel(block.bookLists.closed, clientName, completed_));
  for (QSortFilterProxyModel* proxy : {open_, completed_})
    proxy->setFilterKeyColumn(kClientIdColumn);

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(2, 2, 2, 2);
  layout->addWidget(new QLabel("Open Orders", this));
  layout->addWidget(makeList(this, "open", open_), 3);
  layout->addWidget(new QLabel("Completed Orders", this));
  layout->addWidget(makeList(this, "completed", completed_), 2);

  filterToClient(QString::fromStdString(activeClient()));
  block_.onActiveClientChanged = [this](const std::string& client) {
    filterToClient(QString::fromStdString(client));
  };
}

OrderBookWidget::~OrderBookWidget() {
  block_.onActiveClientChanged = nullptr;
  for (const char* name : {"open", "completed"})
    if (auto* list = findChild<QTableView*>(name))
      saveColumns(list->horizontalHeader(), QString("OFSOrderBook_") + name);
}

void OrderBookWidget::filterToClient(const QString& clientId) {
  const QRegularExpression exact(
      clientId.isEmpty() ? QString() : "^" + QRegularExpression::escape(clientId) + "$");
  open_->setFilterRegularExpression(exact);
  completed_->setFilterRegularExpression(exact);
}
