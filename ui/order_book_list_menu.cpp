// The list's own menu: write to a spreadsheet file, copy, choose columns, grid lines. Each
// works on the lines as shown: visible columns in their order, the active client's rows.
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QDialog>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QTableView>
#include <QVBoxLayout>
#include <algorithm>

#include "domain/csv_file.h"
#include "plugin/control_block.h"
#include "ui/list_memory.h"
#include "ui/order_book_widget.h"

namespace {

constexpr char kListMenuGroup[] = "OFSOrderBookList";

std::vector<int> visibleColumns(const QTableView* list) {
  const QHeaderView* header = list->horizontalHeader();
  std::vector<int> columns;
  for (int visual = 0; visual < header->count(); ++visual) {
    const int logical = header->logicalIndex(visual);
    if (!header->isSectionHidden(logical)) columns.push_back(logical);
  }
  return columns;
}

CsvRow headerRow(const QTableView* list, const std::vector<int>& columns) {
  CsvRow row;
  for (int column : columns)
    row.push_back(list->model()->headerData(column, Qt::Horizontal).toString().toStdString());
  return row;
}

CsvRow lineRow(const QTableView* list, int line, const std::vector<int>& columns) {
  CsvRow row;
  for (int column : columns)
    row.push_back(list->model()->index(line, column).data().toString().toStdString());
  return row;
}

}  // namespace

void OrderBookWidget::addListCommands() {
  const struct {
    const char* text;
    const char* key;
    void (OrderBookWidget::*run)(QTableView*);
  } commands[] = {
      {"Write To Excel\tShift+E", "Shift+E", &OrderBookWidget::writeToCsv},
      {"Copy to ClipBoard \tCtrl+C", "Ctrl+C", &OrderBookWidget::copySelection},
      {"Customize \tCtrl+Shift+C", "Ctrl+Shift+C", &OrderBookWidget::customizeColumns},
      {"Grid Lines\tShift+G", "Shift+G", &OrderBookWidget::toggleGridLines},
  };
  for (const auto& command : commands) {
    auto* action = new QAction(command.text, this);
    action->setObjectName(kListMenuGroup);
    action->setShortcut(QKeySequence(command.key));
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(action, &QAction::triggered, this,
            [this, run = command.run] { (this->*run)(activeList()); });
    addAction(action);
  }
}

void OrderBookWidget::writeToCsv(QTableView* list) {
  PromptPort& prompt = block_.prompt();
  const std::string path = prompt.chooseFile(true, "OrderBook.csv", "CSV Files (*.csv)");
  if (path.empty()) return;
  const std::vector<int> columns = visibleColumns(list);
  std::vector<CsvRow> rows{headerRow(list, columns)};
  for (int line = 0; line < list->model()->rowCount(); ++line)
    rows.push_back(lineRow(list, line, columns));
  if (!writeCsvFile(path, rows)) prompt.message("Unable to write " + path);
}

void OrderBookWidget::copySelection(QTableView* list) {
  const std::vector<int> columns = visibleColumns(list);
  QModelIndexList lines = list->selectionModel()->selectedRows();
  std::sort(lines.begin(), lines.end());
  QString text;
  for (const QModelIndex& line : lines) {
    const CsvRow row = lineRow(list, line.row(), columns);
    QStringList cells;
    for (const std::string& cell : row) cells << QString::fromStdString(cell);
    text += cells.join('\t') + '\n';
  }
  QApplication::clipboard()->setText(text);
}

void OrderBookWidget::customizeColumns(QTableView* list) {
  QHeaderView* header = list->horizontalHeader();
  QDialog chooser(this);
  chooser.setWindowTitle("Customize");
  auto* layout = new QVBoxLayout(&chooser);
  std::vector<QCheckBox*> boxes;
  for (int column = 0; column < header->count(); ++column) {
    auto* box = new QCheckBox(list->model()->headerData(column, Qt::Horizontal).toString());
    box->setChecked(!header->isSectionHidden(column));
    layout->addWidget(box);
    boxes.push_back(box);
  }
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  connect(buttons, &QDialogButtonBox::accepted, &chooser, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, &chooser, &QDialog::reject);
  layout->addWidget(buttons);
  if (chooser.exec() != QDialog::Accepted) return;
  for (int column = 0; column < header->count(); ++column)
    header->setSectionHidden(column, !boxes[static_cast<size_t>(column)]->isChecked());
  saveColumns(header, "OFSOrderBook_" + list->objectName());
}

void OrderBookWidget::toggleGridLines(QTableView* list) {
  list->setShowGrid(!list->showGrid());
  rememberFlag("OFSOrderBook_" + list->objectName(), "GridLines", list->showGrid());
}
