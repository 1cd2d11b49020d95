// The watch view's window: three tabs of issue lists bound to the core CWatchView.
#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>
#include <array>
#include <memory>

#include "issues/watch_view.h"

class COFSControlBlock;
class IssueListModel;
class BasketDialog;
class BulkUploadDialog;
class IssueDetailsDialog;
class MarketDepthDialog;
class OrderEntryDialog;
class ScripPropertiesDialog;
class SelectedIssuePane;
class QTabWidget;
class QTableView;

class WatchViewWidget : public QWidget, private ScreenLauncher {
  Q_OBJECT

 public:
  WatchViewWidget(COFSControlBlock& block, QWidget* parent = nullptr);
  ~WatchViewWidget() override;

  CWatchView& core() { return *core_; }
  // Order entry in modify mode on a reported order, created when it does not exist.
  void openOrderModification(const sOFSOrderInfo& order, const sOFSCol& issue);
  // Closes the windows that must not outlive the plug-in's shutdown.
  void destroyDialogs();

 public slots:
  // The host's delivery of a registered shortcut.
  void onHostHotkey(int number);
  // A context-menu command by number, as if chosen from the menu.
  void runCommand(int command);
  // Selects the rows whose first column is one of `keys` on tab "current", "forthcoming" or
  // "past", and makes that tab the active one. False for an unknown tab.
  bool selectRows(const QString& tab, const QStringList& keys);

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void showContextMenu(WatchTab tab, const QPoint& at);
  void syncSelection(WatchTab tab);
  void writePlacement() const;

  // ScreenLauncher: the screens of this build.
  bool openOrderEntry(sOFSCol& issue) override;
  bool openOrderBook() override;
  bool openBasket() override;
  bool openBulkUpload() override;
  bool openScripProperties(sOFSCol& issue) override;
  bool openMarketDepth(sOFSCol& issue) override;
  bool openIssueDetails(sOFSCol* issue) override;
  bool openIssueUpload() override;
  bool openIssueExport() override;
  bool openAllotmentUpload(const std::string& exchange) override;
  bool deleteInOrderBook() override;

  COFSControlBlock& block_;
  std::unique_ptr<CWatchView> core_;
  QTabWidget* tabs_;
  std::array<QTableView*, 3> lists_{};
  std::array<IssueListModel*, 3> models_{};
  SelectedIssuePane* selectedIssue_;
  bool shownOnce_ = false;
  MarketDepthDialog* marketDepth_ = nullptr;
  BasketDialog* basket_ = nullptr;
  BulkUploadDialog* bulkUpload_ = nullptr;
  IssueDetailsDialog* issueDetails_ = nullptr;
  OrderEntryDialog* orderEntry_ = nullptr;
  ScripPropertiesDialog* scripProperties_ = nullptr;
};
