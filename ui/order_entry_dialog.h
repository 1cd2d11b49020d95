// The order-entry window: binds its widgets to COrderEntryDlg and adds nothing of its own.
#pragma once

#include <QDialog>
#include <memory>

#include "orderentry/order_entry.h"

class COFSControlBlock;
class PromptPort;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class ClientSearchBox;

class OrderEntryDialog : public QDialog, private OrderEntryListener {
  Q_OBJECT

 public:
  OrderEntryDialog(COFSControlBlock& block, PromptPort& prompt, QWidget* parent = nullptr);

  void openNewBid(const sOFSCol& issue);
  void openModification(const sOFSOrderInfo& order, const sOFSCol& issue);
  COrderEntryDlg& screen() { return screen_; }

 private:
  void fieldsChanged() override;
  void choicesChanged() override;
  void headingChanged() override;
  void bindText(QLineEdit* edit, bool (COrderEntryDlg::*setter)(const std::string&));
  void bindChoice(QComboBox* list, bool (COrderEntryDlg::*select)(const std::string&));
  void present();

  COrderEntryDlg screen_;
  QLabel* heading_;
  QLineEdit* ofsId_;
  QLineEdit* quantity_;
  QLineEdit* price_;
  QComboBox* orderType_;
  QLineEdit* exchange_;
  QCheckBox* cutOff_;
  QComboBox* clientType_;
  ClientSearchBox* clientCode_;
  QPushButton* clientSearch_;
  QLineEdit* walkinClient_;
  QLineEdit* walkinParticipant_;
  QComboBox* category_;
  QComboBox* margin_;
  QComboBox* participantCode_;
  QLineEdit* indicativePrice_;
  QPushButton* submit_;
};
