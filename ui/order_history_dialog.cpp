#include "ui/order_history_dialog.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QTableView>
#include <QVBoxLayout>

#include "plugin/control_block.h"
#include "ui/dialog_keys.h"
#include "ui/history_list_model.h"
#include "ui/list_look.h"

OrderHistoryDialog::OrderHistoryDialog(COFSControlBlock& block, QWidget* parent)
    : QDialog(parent), block_(block), history_(block) {
  setObjectName("OrderHistory");
  setProperty("dumpName", "history");
  setProperty("dumpLists", QStringList{"history"});
  model_ = new HistoryListModel(history_, this);
  table_ = new QTableView(this);
  table_->setObjectName("history");
  table_->setAccessibleName("Order History");
  table_->setModel(model_);
  table_->setSelectionBehavior(QAbstractItemView::SelectRows);
  table_->setSelectionMode(QAbstractItemView::SingleSelection);
  table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  // Fixed row heights: a long history is laid out without measuring its lines.
  table_->verticalHeader()->hide();
  table_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  // Sized to what the lines show, so a date and time never wraps; the last column takes the rest.
  table_->horizontalHeader()->setStretchLastSection(true);
  restoreOrFitColumns(table_, "OFSOrderHistory");
  connect(table_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this](const QModelIndex& current) {
            history_.selectRow(current.isValid() ? static_cast<size_t>(current.row())
                                                 : COrderHistory::kNoRow);
          });
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(new QLabel("OFSOrderNo:", this));
  layout->addWidget(table_, 1);
  layout->addLayout(makeDetails());
  setUpKeyboard(this);
  resize(640, 480);
  history_.setListener(this);
  block_.onHistoryRow = [this](std::unique_ptr<sOFSOrderInfo> row) {
    history_.addRow(std::move(row));
  };
  block_.onHistoryEnd = [this] { history_.replyEnded(); };
}

OrderHistoryDialog::~OrderHistoryDialog() {
  block_.onHistoryRow = nullptr;
  block_.onHistoryEnd = nullptr;
  history_.setListener(nullptr);
}

// Label and value side by side, the value the label's buddy, two pairs to a line.
QLayout* OrderHistoryDialog::makeDetails() {
  auto* grid = new QGridLayout;
  for (size_t i = 0; i < kHistoryDetailCount; ++i) {
    auto* label = new QLabel(historyDetailLabels()[i], this);
    values_[i] = new QLabel(this);
    values_[i]->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setBuddy(values_[i]);
    const int line = static_cast<int>(i / 2);
    const int column = static_cast<int>(i % 2) * 2;
    grid->addWidget(label, line, column);
    grid->addWidget(values_[i], line, column + 1);
  }
  return grid;
}

PromptPort& OrderHistoryDialog::prompt() {
  return block_.prompt();
}

void OrderHistoryDialog::openFor(const std::string& orderNo) {
  history_.open(orderNo);
  show();
  raise();
  activateWindow();
}

void OrderHistoryDialog::rowsAppended(size_t first, size_t count) {
  model_->rowsAppended(first, count);
}

void OrderHistoryDialog::rowsReset() {
  model_->rowsReset();
}

void OrderHistoryDialog::titleChanged() {
  const QString title = QString::fromStdString(history_.title());
  setWindowTitle(title);
  setProperty("heading", title);
}

void OrderHistoryDialog::detailsChanged() {
  for (size_t i = 0; i < kHistoryDetailCount; ++i)
    values_[i]->setText(QString::fromStdString(history_.details()[i]));
}
