// The basket window: binds its widgets to CBasketManagerOFS and adds nothing of its own.
#pragma once

#include <QDialog>

#include "basket/basket_manager.h"

class BasketListModel;
class COFSControlBlock;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableView;

class BasketDialog : public QDialog, private BasketListener {
  Q_OBJECT

 public:
  BasketDialog(COFSControlBlock& block, QWidget* parent = nullptr);
  ~BasketDialog() override;

  // Shows the window on `issue` (none: rows cannot be added until one is chosen).
  void openOn(const sOFSCol* issue);
  CBasketManagerOFS& screen() { return screen_; }

 private:
  void fieldsChanged() override;
  void rowsChanged() override;
  void bindText(QLineEdit* edit, bool (CBasketManagerOFS::*setter)(const std::string&));
  void bindChoice(QComboBox* list, bool (CBasketManagerOFS::*select)(const std::string&));
  QPushButton* button(const char* text, void (CBasketManagerOFS::*run)());

  CBasketManagerOFS screen_;
  BasketListModel* model_;
  QTableView* list_;
  QLineEdit* exchange_;
  QLineEdit* companyName_;
  QLineEdit* issueId_;
  QLineEdit* openDate_;
  QLineEdit* closeDate_;
  QLineEdit* minQty_;
  QLineEdit* cutOffText_;
  QComboBox* orderType_;
  QLineEdit* quantity_;
  QLineEdit* price_;
  QCheckBox* cutOff_;
  QComboBox* clientId_;
  QComboBox* margin_;
  QComboBox* participantCode_;
  QLineEdit* path_;
  QLabel* count_;
  QPushButton* add_;
  QPushButton* place_;
};
