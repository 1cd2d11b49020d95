// Under the watch view's tabs: the selected issue's key facts beside its demand chart.
#pragma once

#include <QWidget>
#include <utility>
#include <vector>

#include "issues/selected_issue.h"

class COFSControlBlock;
class DemandChart;
class QGridLayout;
class QLabel;
class QPushButton;

class SelectedIssuePane : public QWidget {
  Q_OBJECT

 public:
  SelectedIssuePane(COFSControlBlock& block, QWidget* parent = nullptr);
  ~SelectedIssuePane() override;

  // Null: nothing is selected.
  void showIssue(const sOFSCol* issue);

 private:
  void refresh();

  COFSControlBlock& block_;
  CSelectedIssue core_;
  QLabel* heading_;
  QGridLayout* factsGrid_;
  std::vector<std::pair<QLabel*, QLabel*>> facts_;
  QPushButton* follow_;
  DemandChart* chart_;
};
