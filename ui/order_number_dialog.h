// The small "Order History" prompt: an order number, and OK opens that order's history.
#pragma once

#include <QDialog>

#include "orderbook/order_number_prompt.h"

class OrderHistoryDialog;
class QLineEdit;

class OrderNumberDialog : public QDialog {
  Q_OBJECT

 public:
  OrderNumberDialog(OrderHistoryDialog& history, QWidget* parent = nullptr);

  void accept() override;

 private:
  CVornOrderNo prompt_;
  QLineEdit* number_;
};
