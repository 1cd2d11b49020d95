// The issue dialog's window: binds its widgets to COFSIssueDetails and adds nothing of its own
// but the date and time pickers.
#pragma once

#include <QDialog>
#include <array>

#include "issues/issue_details.h"

class COFSControlBlock;
class QCheckBox;
class QComboBox;
class QDateEdit;
class QLineEdit;
class QPushButton;
class QTimeEdit;

class IssueDetailsDialog : public QDialog {
  Q_OBJECT

 public:
  IssueDetailsDialog(COFSControlBlock& block, QWidget* parent = nullptr);
  ~IssueDetailsDialog() override;

  // Null: a new issue; otherwise the issue to modify.
  void openOn(const sOFSCol* issue);
  COFSIssueDetails& screen() { return screen_; }

 private:
  QWidget* fieldFor(IssueText field);
  void bindText(IssueText field, QLineEdit* edit);
  void fieldsChanged();
  void present();

  COFSControlBlock& block_;
  COFSIssueDetails screen_;
  std::array<QLineEdit*, kIssueTextCount> edits_{};
  std::array<QDateEdit*, 3> dates_{};
  QTimeEdit* closingTime_ = nullptr;
  std::array<QComboBox*, kIssueListCount> lists_{};
  QCheckBox* cutOff_;
  QCheckBox* discountOffered_;
  QPushButton* submit_;
};
