// The plug-in's main view: the known issues on three tabs, and the launching point of every
// other screen through its context menus and shortcuts. Plain logic; the Qt view binds to it.
#pragma once

#include <array>
#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "domain/records.h"
#include "issues/issues_port.h"
#include "issues/screen_launcher.h"
#include "issues/watch_menus.h"

class CWatchView {
 public:
  // Obtains the five receive controls (kinds 2, 0, 2, 3, 1) and hands them to the message
  // layer; the destructor gives them back.
  explicit CWatchView(IssuesPort& port);
  ~CWatchView();
  CWatchView(const CWatchView&) = delete;
  CWatchView& operator=(const CWatchView&) = delete;

  static constexpr std::array<const char*, 3> kTabTitles{"Current Issues", "Forthcoming Issues",
                                                         "Past Issues"};
  static constexpr std::array<const char*, 3> kListSettingsNames{
      "OFSWatchView", "OFSForthComingIssues", "OFSPastIssueList"};
  static constexpr std::array<const char*, 3> kListTitles{
      "Current Issue List", "ForthComing Issue List", "Past Issue List"};

  // Places a new issue at the top of the tab its dates choose, once and for good.
  void addIssue(sOFSCol* issue);
  const std::deque<sOFSCol*>& rows(WatchTab tab) const { return rows_[index(tab)]; }
  const std::vector<std::string>& currentIssueIds() const { return currentIds_; }

  // What the view shows changed: (tab, row) inserted at the top, or -1 for "repaint all".
  void setChangeListener(std::function<void(WatchTab, int)> listener) {
    changed_ = std::move(listener);
  }
  void setLauncher(ScreenLauncher* launcher) { launcher_ = launcher; }

  void setActiveTab(WatchTab tab) { activeTab_ = tab; }
  WatchTab activeTab() const { return activeTab_; }
  // Rows selected on a tab, in selection order.
  void setSelection(WatchTab tab, std::vector<int> rows) {
    selection_[index(tab)] = std::move(rows);
  }
  sOFSCol* selectedIssue() const;

  std::vector<MenuEntry> contextMenu(WatchTab tab) const;
  // Registers the shortcut table with the host for the view's window.
  void registerHotkeys(void* window) const;
  void runCommand(int command);
  void runHotkey(int number);

  // An underlying price was shown for the first time; its issues' rows repaint.
  void assetShown(const std::string& exchange, const std::string& symbol);
  // After an issue file upload: repaint everything.
  void refresh();

 private:
  static size_t index(WatchTab tab) { return static_cast<size_t>(tab); }
  WatchTab tabFor(const sOFSCol& issue) const;
  bool requireAddIssueRight();
  void cancelUnallottedOrders();
  void notify(WatchTab tab, int row) const {
    if (changed_) changed_(tab, row);
  }

  IssuesPort& port_;
  std::array<std::deque<sOFSCol*>, 3> rows_;
  std::array<std::vector<int>, 3> selection_;
  std::vector<std::string> currentIds_;
  WatchTab activeTab_ = WatchTab::Current;
  std::function<void(WatchTab, int)> changed_;
  ScreenLauncher* launcher_ = nullptr;
};
