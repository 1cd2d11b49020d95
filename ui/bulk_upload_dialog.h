// The bulk upload window: binds its widgets to CBulkUpload and adds nothing of its own but the
// progress windows of long loads and placements.
#pragma once

#include <QDialog>
#include <string>

#include "basket/bulk_upload.h"

class BulkGridModel;
class BulkRefusedModel;
class COFSControlBlock;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListView;
class QPushButton;
class QTableView;
class PromptPort;

class BulkUploadDialog : public QDialog, private BulkUploadListener {
  Q_OBJECT

 public:
  BulkUploadDialog(COFSControlBlock& block, QWidget* parent = nullptr);
  ~BulkUploadDialog() override;

  // Shows the window for `issue` (none: the VT list takes any issue).
  void openOn(const sOFSCol* issue);
  CBulkUpload& screen() { return screen_; }

 private:
  void fieldsChanged() override;
  void rowsChanged() override;
  QWidget* entryFields();
  // A text field bound to `field`; `edit` when given, else a plain one.
  QLineEdit* text(std::string BulkEntry::*field, QLineEdit* edit = nullptr);
  QComboBox* choice(std::string BulkEntry::*field, const QStringList& items);
  QPushButton* button(const char* text, const std::function<void()>& run);
  void browse();
  void place();
  void deleteRow();

  PromptPort& prompt_;
  CBulkUpload screen_;
  BulkGridModel* model_;
  BulkRefusedModel* refusedModel_;
  QComboBox* fileType_;
  QTableView* grid_;
  QListView* refused_;
  QLabel* status_;
  QCheckBox* cutOff_;
  QComboBox* clientId_;
  QLineEdit* cutOffAllowed_;
  QPushButton* place_;
  QPushButton* exportInvalid_;
  std::vector<std::pair<QLineEdit*, std::string BulkEntry::*>> texts_;
  std::vector<std::pair<QComboBox*, std::string BulkEntry::*>> choices_;
};
