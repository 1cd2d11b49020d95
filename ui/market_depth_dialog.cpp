#include "ui/market_depth_dialog.h"

#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

#include "plugin/control_block.h"
#include "ui/demand_chart.h"
#include "ui/dialog_keys.h"

MarketDepthDialog::MarketDepthDialog(COFSControlBlock& block, QWidget* parent)
    : QDialog(parent), block_(block), depth_(block) {
  setObjectName("MarketDepth");
  levels_ = new QTableWidget(5, 3, this);
  levels_->setObjectName("levels");
  levels_->setAccessibleName("Market Depth");
  levels_->setHorizontalHeaderLabels({"Bid Price", "Quantity", "No. of Bids"});
  levels_->verticalHeader()->hide();
  levels_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  levels_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  total_ = new QLabel(this);
  lastUpdate_ = new QLabel(this);
  chart_ = new DemandChart(this);
  auto* book = new QVBoxLayout;
  book->addWidget(levels_);
  book->addWidget(total_);
  book->addWidget(lastUpdate_);
  auto* layout = new QHBoxLayout(this);
  layout->addLayout(book, 1);
  layout->addWidget(chart_, 1);
  setUpKeyboard(this);
  resize(780, 280);
  followHostFonts(this, block.fontVariation);
}

MarketDepthDialog::~MarketDepthDialog() {
  block_.onMarketDepthChanged = nullptr;
  depth_.close();
}

void MarketDepthDialog::showIssue(const sOFSCol& issue) {
  depth_.open(issue);
  block_.onMarketDepthChanged = [this] { repaint(); };
  setWindowTitle(QString::fromStdString(depth_.title()));
  setProperty("heading", windowTitle());
  repaint();
  show();
  raise();
  activateWindow();
}

void MarketDepthDialog::done(int result) {
  block_.onMarketDepthChanged = nullptr;
  depth_.close();
  QDialog::done(result);
}

void MarketDepthDialog::repaint() {
  const auto levels = depth_.levels();
  for (int row = 0; row < 5; ++row) {
    const CMarketDepth::Level& level = levels[static_cast<size_t>(row)];
    const QString cells[] = {QString::fromStdString(level.price),
                             QString::fromStdString(level.quantity),
                             QString::fromStdString(level.bids)};
    for (int column = 0; column < 3; ++column) {
      auto* item = new QTableWidgetItem(cells[column]);
      item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
      levels_->setItem(row, column, item);
    }
  }
  total_->setText("TBQ: " + QString::fromStdString(depth_.totalBidQuantity()));
  lastUpdate_->setText("Last Update: " + QString::fromStdString(depth_.lastUpdate()));
  chart_->setCurve(depth_.demand());
}
