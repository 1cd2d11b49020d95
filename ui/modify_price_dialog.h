// The "Modify Multiple Order Price" window: binds its widgets to CModifyOrderPrice and adds
// nothing of its own.
#pragma once

#include <QDialog>
#include <string>
#include <vector>

#include "orderbook/modify_order_price.h"

class COFSControlBlock;
class ModifyPriceModel;
class QLabel;
class QLineEdit;

class ModifyPriceDialog : public QDialog, private ModifyPriceListener {
  Q_OBJECT

 public:
  ModifyPriceDialog(COFSControlBlock& block, QWidget* parent = nullptr);
  ~ModifyPriceDialog() override;

  // Shows the orders (not owned) under the book's heading, and brings the window to the front.
  void present(std::vector<sOFSOrderInfo*> orders, const std::string& heading);
  CModifyOrderPrice& screen() { return screen_; }

  void reject() override;

 private:
  void fieldsChanged() override;
  void rowsResetting() override;
  void rowsReset() override;
  void visibilityChanged() override;
  void bindText(QLineEdit* edit, bool (CModifyOrderPrice::*setter)(const std::string&));

  CModifyOrderPrice screen_;
  ModifyPriceModel* model_;
  QLabel* heading_;
  QLineEdit* price_;
  QLineEdit* quantity_;
};
