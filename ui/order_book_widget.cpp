#include "ui/order_book_widget.h"

#include <QAction>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QMenu>
#include <QRegularExpression>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QTimer>
#include <QVBoxLayout>

#include "orderbook/book_summary.h"
#include "orderbook/order_book_columns.h"
#include "plugin/control_block.h"
#include "plugin/lifecycle.h"
#include "ui/book_list_model.h"
#include "ui/list_look.h"
#include "ui/list_memory.h"
#include "ui/modify_price_dialog.h"
#include "ui/order_history_dialog.h"
#include "ui/order_number_dialog.h"
#include "ui/watch_view_widget.h"

namespace {

QString settingsName(const QTableView* list) {
  return "OFSOrderBook_" + list->objectName();
}

QLabel* heading(const char* text, QWidget* parent) {
  auto* label = new QLabel(text, parent);
  QFont bold = label->font();
  bold.setBold(true);
  label->setFont(bold);
  return label;
}

}  // namespace

OrderBookWidget::OrderBookWidget(COFSControlBlock& block, WatchViewWidget& watchView,
                                 QWidget* parent)
    : QWidget(parent), block_(block), watchView_(watchView), book_(block, *this) {
  setObjectName("OrderBook");
  setWindowTitle(COrderBookDlgBar::kTitle);
  setProperty("dumpName", "order-book");
  setProperty("dumpLists", QStringList{"open", "completed"});
  auto clientName = [&block](const std::string& client) {
    std::string name;
    if (block.services.getClientName && !client.empty()) block.services.getClientName(client, name);
    return name;
  };
  // Every OFS bid is a buy, so the side tells the lines nothing; what a dealer needs to see at a
  // glance is which open orders the issue or the carry-forward status has frozen.
  auto refused = [&block](const sOFSOrderInfo& order) {
    return modifyAndCancelRefused(order, block.issueOfOrder(order));
  };
  open_ = new QSortFilterProxyModel(this);
  open_->setSourceModel(new BookListModel(block.bookLists.open, clientName, refused, open_));
  completed_ = new QSortFilterProxyModel(this);
  completed_->setSourceModel(new BookListModel(block.bookLists.closed, clientName, {}, completed_));
  for (QSortFilterProxyModel* proxy : {open_, completed_})
    proxy->setFilterKeyColumn(kClientIdColumn);

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(2, 2, 2, 2);
  openList_ = makeList("open", open_);
  completedList_ = makeList("completed", completed_);
  activeList_ = openList_;
  layout->addWidget(heading("Open Orders", this));
  layout->addWidget(openList_, 3);
  layout->addWidget(makeTotals(openList_, block.bookLists.open));
  layout->addWidget(heading("Completed Orders", this));
  layout->addWidget(completedList_, 2);
  layout->addWidget(makeTotals(completedList_, block.bookLists.closed));
  addCommands();
  addListCommands();

  filterToClient(QString::fromStdString(activeClient()));
  block_.onActiveClientChanged = [this](const std::string& client) {
    filterToClient(QString::fromStdString(client));
  };
}

OrderBookWidget::~OrderBookWidget() {
  block_.onActiveClientChanged = nullptr;
  for (QTableView* list : {openList_, completedList_})
    saveColumns(list->horizontalHeader(), settingsName(list));
}

QTableView* OrderBookWidget::makeList(const char* name, QSortFilterProxyModel* model) {
  auto* list = new QTableView(this);
  list->setObjectName(name);
  list->setModel(model);
  list->setSelectionBehavior(QAbstractItemView::SelectRows);
  list->setSelectionMode(QAbstractItemView::ExtendedSelection);
  list->setEditTriggers(QAbstractItemView::NoEditTriggers);
  list->verticalHeader()->hide();
  list->verticalHeader()->setDefaultSectionSize(list->fontMetrics().height() + 6);
  list->horizontalHeader()->setSectionsMovable(true);
  list->setContextMenuPolicy(Qt::CustomContextMenu);
  restoreOrFitColumns(list, settingsName(list));
  list->setShowGrid(rememberedFlag(settingsName(list), "GridLines", true));
  connect(list, &QTableView::customContextMenuRequested, this,
          [this, list](const QPoint& at) { showContextMenu(list, at); });
  connect(list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          [this, list] { activeList_ = list; });
  // Double-click or Enter on a line.
  connect(list, &QTableView::activated, this, [this, list] {
    activeList_ = list;
    book_.modifyOrder(focusedOrder(list), ModifyPath::List);
  });
  return list;
}

QLabel* OrderBookWidget::makeTotals(QTableView* list, const BookList& orders) {
  auto* totals = new QLabel(this);
  totals->setObjectName(list->objectName() + "Totals");
  totals->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  totals->setTextInteractionFlags(Qt::TextSelectableByMouse);
  // Live updates come in bursts: one count per pass of the event loop covers a whole burst.
  auto* pending = new QTimer(totals);
  pending->setSingleShot(true);
  pending->setInterval(0);
  connect(pending, &QTimer::timeout, totals, [this, list, &orders, totals] {
    BookTotals sum;
    // A million lines cost a few milliseconds read straight from the list; through the client
    // filter only its client's lines are counted.
    auto* proxy = static_cast<QSortFilterProxyModel*>(list->model());
    if (proxy->filterRegularExpression().pattern().isEmpty()) {
      orders.forEachOrder([&sum](const sOFSOrderInfo& order) { sum.add(order); });
    } else {
      for (int line = 0; line < proxy->rowCount(); ++line)
        if (const sOFSOrderInfo* order = orderOnLine(list, line)) sum.add(*order);
    }
    totals->setText(QString::fromStdString(bookTotalsText(sum)));
  });
  QAbstractItemModel* model = list->model();
  for (auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
    connect(model, signal, pending, qOverload<>(&QTimer::start));
  connect(model, &QAbstractItemModel::dataChanged, pending, qOverload<>(&QTimer::start));
  connect(model, &QAbstractItemModel::modelReset, pending, qOverload<>(&QTimer::start));
  connect(model, &QAbstractItemModel::layoutChanged, pending, qOverload<>(&QTimer::start));
  pending->start();
  return totals;
}

void OrderBookWidget::filterToClient(const QString& clientId) {
  const QRegularExpression exact(
      clientId.isEmpty() ? QString() : "^" + QRegularExpression::escape(clientId) + "$");
  open_->setFilterRegularExpression(exact);
  completed_->setFilterRegularExpression(exact);
}

void OrderBookWidget::addCommands() {
  for (const OrderBookCommand& command : orderBookCommands()) {
    QString text = command.text;
    if (*command.key) text += QString("\t") + command.key;
    auto* action = new QAction(text, this);
    action->setObjectName(COrderBookDlgBar::kMenuGroup);
    // Delete reaches the book through the host's own shortcut for the watch view; a second
    // binding of the key here would make both ambiguous.
    if (*command.key && command.id != OrderBookCommand::Cancel) {
      action->setShortcut(QKeySequence(command.key));
      action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    }
    connect(action, &QAction::triggered, this, [this, id = command.id] { runCommand(id); });
    addAction(action);
  }
}

void OrderBookWidget::runCommand(OrderBookCommand::Id command) {
  QTableView* list = activeList();
  switch (command) {
    case OrderBookCommand::Modify:
      return book_.modifyOrder(focusedOrder(list), ModifyPath::Menu);
    case OrderBookCommand::Cancel:
      return cancelSelected();
    case OrderBookCommand::History:
      return book_.showHistory(focusedOrder(list));
    case OrderBookCommand::BulkModify:
      return book_.bulkModify(selectedOrders(list));
    case OrderBookCommand::CarryForward:
      return book_.carryForward(selectedOrders(list));
  }
}

void OrderBookWidget::cancelSelected() {
  QTableView* list = activeList();
  if (book_.cancelOrders(selectedOrders(list))) moveFocusDown(list);
}

void OrderBookWidget::destroyDialogs() {
  delete orderNumber_;
  orderNumber_ = nullptr;
  delete history_;
  history_ = nullptr;
  delete modifyPrice_;
  modifyPrice_ = nullptr;
}

void OrderBookWidget::showContextMenu(QTableView* list, const QPoint& at) {
  activeList_ = list;
  QMenu menu(this);
  const QList<QAction*> all = actions();
  for (int i = 0; i < all.size(); ++i) {
    // The book's commands, then the list's own.
    if (i > 0 && all[i]->objectName() != all[i - 1]->objectName()) menu.addSeparator();
    menu.addAction(all[i]);
  }
  menu.exec(list->viewport()->mapToGlobal(at));
}

std::vector<sOFSOrderInfo*> OrderBookWidget::selectedOrders(const QTableView* list) const {
  auto* proxy = static_cast<QSortFilterProxyModel*>(list->model());
  auto* model = static_cast<BookListModel*>(proxy->sourceModel());
  std::vector<sOFSOrderInfo*> orders;
  for (const QModelIndex& index : list->selectionModel()->selectedRows())
    if (sOFSOrderInfo* order = model->orderAt(proxy->mapToSource(index).row()))
      orders.push_back(order);
  return orders;
}

sOFSOrderInfo* OrderBookWidget::focusedOrder(const QTableView* list) const {
  const QModelIndex current = list->currentIndex();
  return current.isValid() ? orderOnLine(list, current.row()) : nullptr;
}

sOFSOrderInfo* OrderBookWidget::orderOnLine(const QTableView* list, int line) const {
  auto* proxy = static_cast<QSortFilterProxyModel*>(list->model());
  return static_cast<BookListModel*>(proxy->sourceModel())
      ->orderAt(proxy->mapToSource(proxy->index(line, 0)).row());
}

void OrderBookWidget::moveFocusDown(QTableView* list) {
  const QModelIndex current = list->currentIndex();
  const int next = current.isValid() ? current.row() + 1 : 0;
  if (next >= list->model()->rowCount()) return;
  list->setCurrentIndex(list->model()->index(next, 0));
}

void OrderBookWidget::openOrderModification(const sOFSOrderInfo& order, const sOFSCol& issue) {
  watchView_.openOrderModification(order, issue);
}

bool OrderBookWidget::ensureModifyPriceWindow() {
  if (!modifyPrice_) modifyPrice_ = new ModifyPriceDialog(block_, this);
  return modifyPrice_ != nullptr;
}

void OrderBookWidget::openModifyPrice(std::vector<sOFSOrderInfo*> orders,
                                      const std::string& heading) {
  modifyPrice_->present(std::move(orders), heading);
}

void OrderBookWidget::openHistory(const std::string& orderNo) {
  if (!history_) history_ = new OrderHistoryDialog(block_, this);
  history_->openFor(orderNo);
}

void OrderBookWidget::askHistoryOrderNumber() {
  if (!history_) history_ = new OrderHistoryDialog(block_, this);
  if (!orderNumber_) orderNumber_ = new OrderNumberDialog(*history_, this);
  orderNumber_->show();
  orderNumber_->raise();
}
