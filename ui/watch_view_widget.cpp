#include "ui/watch_view_widget.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QMdiSubWindow>
#include <QMenu>
#include <QTabWidget>
#include <QTableView>
#include <QVBoxLayout>

#include "issues/allotment_upload.h"
#include "issues/issue_file_screens.h"
#include "plugin/control_block.h"
#include "plugin/settings_paths.h"
#include "ui/basket_dialog.h"
#include "ui/bulk_upload_dialog.h"
#include "ui/issue_details_dialog.h"
#include "ui/issue_list_model.h"
#include "ui/list_look.h"
#include "ui/list_memory.h"
#include "ui/market_depth_dialog.h"
#include "ui/ofs_frame.h"
#include "ui/order_book_widget.h"
#include "ui/order_entry_dialog.h"
#include "ui/qt_platform.h"
#include "ui/scrip_properties_dialog.h"
#include "ui/selected_issue_pane.h"

namespace {

constexpr std::array<const char*, 3> kTabKeys{"current", "forthcoming", "past"};

void fillMenu(QMenu& menu, const std::vector<MenuEntry>& entries, WatchViewWidget* view) {
  for (const MenuEntry& entry : entries) {
    if (entry.isSeparator()) {
      menu.addSeparator();
    } else if (!entry.items.empty()) {
      fillMenu(*menu.addMenu(QString::fromStdString(entry.text)), entry.items, view);
    } else {
      const int command = entry.command;
      menu.addAction(QString::fromStdString(entry.text), view,
                     [view, command] { view->runCommand(command); });
    }
  }
}

}  // namespace

WatchViewWidget::WatchViewWidget(COFSControlBlock& block, QWidget* parent)
    : QWidget(parent), block_(block), core_(std::make_unique<CWatchView>(block)) {
  setObjectName("OFSWatchView");
  setProperty("dumpName", "watch");
  setProperty("dumpLists", QStringList{"current", "forthcoming", "past"});
  tabs_ = new QTabWidget(this);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(tabs_, 1);
  selectedIssue_ = new SelectedIssuePane(block_, this);
  layout->addWidget(selectedIssue_);

  for (size_t i = 0; i < 3; ++i) {
    const auto tab = static_cast<WatchTab>(i);
    auto* list = new QTableView(tabs_);
    list->setObjectName(kTabKeys[i]);
    list->setAccessibleName(CWatchView::kListTitles[i]);
    models_[i] = new IssueListModel(*core_, tab, list);
    list->setModel(models_[i]);
    list->setSelectionBehavior(QAbstractItemView::SelectRows);
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->verticalHeader()->hide();
    list->setContextMenuPolicy(Qt::CustomContextMenu);
    list->setAlternatingRowColors(true);
    list->verticalHeader()->setDefaultSectionSize(list->fontMetrics().height() + 6);
    list->horizontalHeader()->setSectionsMovable(true);
    restoreOrFitColumns(list, CWatchView::kListSettingsNames[i]);
    // Right clicks on the header never reach this signal, so the header shows no menu.
    connect(list, &QWidget::customContextMenuRequested, this, [this, tab, list](const QPoint& at) {
      showContextMenu(tab, list->viewport()->mapToGlobal(at));
    });
    connect(list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this, tab] { syncSelection(tab); });
    tabs_->addTab(list, CWatchView::kTabTitles[i]);
    lists_[i] = list;
  }
  connect(tabs_, &QTabWidget::currentChanged, this, [this](int index) {
    core_->setActiveTab(static_cast<WatchTab>(index));
    selectedIssue_->showIssue(core_->selectedIssue());
  });
  core_->setChangeListener([this](WatchTab tab, int row) {
    models_[static_cast<size_t>(tab)]->coreChanged(row);
    if (row != 0) return;
    // The new issue's row takes the focus; the selection stays as the user left it.
    QTableView* list = lists_[static_cast<size_t>(tab)];
    list->selectionModel()->setCurrentIndex(models_[static_cast<size_t>(tab)]->index(0, 0),
                                            QItemSelectionModel::NoUpdate);
    list->scrollToTop();
  });
  core_->setLauncher(this);
}

void WatchViewWidget::destroyDialogs() {
  delete basket_;
  basket_ = nullptr;
  delete bulkUpload_;
  bulkUpload_ = nullptr;
  delete orderEntry_;
  orderEntry_ = nullptr;
  delete marketDepth_;
  marketDepth_ = nullptr;
  delete scripProperties_;
  scripProperties_ = nullptr;
  delete issueDetails_;
  issueDetails_ = nullptr;
}

WatchViewWidget::~WatchViewWidget() {
  // The dialogs go first: they let go of the control block's hooks while it still exists.
  destroyDialogs();
  writePlacement();
  for (size_t i = 0; i < 3; ++i)
    saveColumns(lists_[i]->horizontalHeader(), CWatchView::kListSettingsNames[i]);
  core_->setChangeListener(nullptr);
}

void WatchViewWidget::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (shownOnce_) return;
  shownOnce_ = true;
  setWindowTitle(CWatchView::kListTitles[0]);
  core_->registerHotkeys(this);
}

void WatchViewWidget::showContextMenu(WatchTab tab, const QPoint& at) {
  const std::vector<MenuEntry> entries = core_->contextMenu(tab);
  if (entries.empty()) return;
  QMenu menu(this);
  fillMenu(menu, entries, this);
  menu.exec(at);
}

void WatchViewWidget::syncSelection(WatchTab tab) {
  QTableView* list = lists_[static_cast<size_t>(tab)];
  std::vector<int> rows;
  for (const QModelIndex& index : list->selectionModel()->selectedRows())
    rows.push_back(index.row());
  core_->setSelection(tab, std::move(rows));
  selectedIssue_->showIssue(core_->selectedIssue());
}

bool WatchViewWidget::selectRows(const QString& tabKey, const QStringList& keys) {
  for (size_t i = 0; i < 3; ++i) {
    if (tabKey != kTabKeys[i]) continue;
    QTableView* list = lists_[i];
    tabs_->setCurrentIndex(static_cast<int>(i));
    list->clearSelection();
    std::vector<int> rows;
    const auto& issues = core_->rows(static_cast<WatchTab>(i));
    for (const QString& key : keys) {
      for (size_t r = 0; r < issues.size(); ++r) {
        if (QString::fromStdString(issues[r]->issueId) != key) continue;
        list->selectionModel()->select(models_[i]->index(static_cast<int>(r), 0),
                                       QItemSelectionModel::Select | QItemSelectionModel::Rows);
        rows.push_back(static_cast<int>(r));
        break;
      }
    }
    // Keep the order the keys were given in: the first one is "the" selected issue.
    core_->setSelection(static_cast<WatchTab>(i), std::move(rows));
    core_->setActiveTab(static_cast<WatchTab>(i));
    selectedIssue_->showIssue(core_->selectedIssue());
    return true;
  }
  return false;
}

void WatchViewWidget::onHostHotkey(int number) {
  core_->runHotkey(number);
}

void WatchViewWidget::runCommand(int command) {
  core_->runCommand(command);
}

void WatchViewWidget::writePlacement() const {
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.isEmpty()) return;
  // The view's parent frame stands in the host's document area as a sub-window; without one
  // it is a window of its own.
  const QWidget* frame = parentWidget();
  if (!frame) return;
  if (auto* container = qobject_cast<const QMdiSubWindow*>(frame->parentWidget()))
    frame = container;
  const QRect normal =
      frame->normalGeometry().isValid() ? frame->normalGeometry() : frame->geometry();
  WindowPlacement p;
  p.top = normal.top();
  p.left = normal.left();
  p.bottom = normal.bottom() + 1;
  p.right = normal.right() + 1;
  p.showState = frame->isMaximized() ? 3 : frame->isMinimized() ? 2 : 1;
  // A failed write changes nothing else.
  writeProfileString(watchPlacementPath(arguments.front().toStdString()), kPlacementSection,
                     kPlacementKey, formatPlacement(p));
}

// Screens that arrive with later work answer false until they are wired here.
bool WatchViewWidget::openOrderEntry(sOFSCol& issue) {
  if (!orderEntry_) orderEntry_ = new OrderEntryDialog(block_, qtPlatform().prompt(), this);
  orderEntry_->openNewBid(issue);
  return true;
}
void WatchViewWidget::openOrderModification(const sOFSOrderInfo& order, const sOFSCol& issue) {
  if (!orderEntry_) orderEntry_ = new OrderEntryDialog(block_, qtPlatform().prompt(), this);
  orderEntry_->openModification(order, issue);
}

bool WatchViewWidget::openOrderBook() {
  auto* frame = qobject_cast<COFSFrame*>(parentWidget());
  if (!frame) return false;
  frame->showOrderBook();
  return true;
}
bool WatchViewWidget::openBasket() {
  if (!basket_) basket_ = new BasketDialog(block_, this);
  basket_->openOn(core_->selectedIssue());
  return true;
}
bool WatchViewWidget::openBulkUpload() {
  if (!bulkUpload_) bulkUpload_ = new BulkUploadDialog(block_, this);
  bulkUpload_->openOn(core_->selectedIssue());
  return true;
}
bool WatchViewWidget::openScripProperties(sOFSCol& issue) {
  if (!scripProperties_) scripProperties_ = new ScripPropertiesDialog(this);
  scripProperties_->showIssue(issue);
  return true;
}
bool WatchViewWidget::openMarketDepth(sOFSCol& issue) {
  if (!marketDepth_) marketDepth_ = new MarketDepthDialog(block_, this);
  marketDepth_->showIssue(issue);
  return true;
}
bool WatchViewWidget::openIssueDetails(sOFSCol* issue) {
  if (!issueDetails_) issueDetails_ = new IssueDetailsDialog(block_, this);
  issueDetails_->openOn(issue);
  return true;
}
bool WatchViewWidget::openIssueUpload() {
  uploadIssueFile(block_);
  return true;
}
bool WatchViewWidget::openIssueExport() {
  exportIssueFile(block_);
  return true;
}
bool WatchViewWidget::openAllotmentUpload(const std::string& exchange) {
  // No window of its own: the file chooser and every message come through the prompt.
  COFSAllotmentUpload(static_cast<IssuesPort&>(block_)).run(exchange);
  return true;
}
bool WatchViewWidget::deleteInOrderBook() {
  auto* frame = qobject_cast<COFSFrame*>(parentWidget());
  if (!frame || !frame->orderBook()->isVisible()) return false;
  frame->orderBook()->cancelSelected();
  return true;
}
