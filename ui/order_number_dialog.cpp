#include "ui/order_number_dialog.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/dialog_keys.h"
#include "ui/numeric_edit.h"
#include "ui/order_history_dialog.h"

OrderNumberDialog::OrderNumberDialog(OrderHistoryDialog& history, QWidget* parent)
    : QDialog(parent), prompt_(history.prompt(), [&history](const std::string& orderNo) {
        history.openFor(orderNo);
      }) {
  setObjectName("OrderNumber");
  setWindowTitle("Order History");
  number_ = new NumericEdit(NumericEdit::Kind::Digits, &history.prompt(), this);
  auto* label = new QLabel("Order Number:", this);
  label->setBuddy(number_);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  buttons->button(QDialogButtonBox::Ok)->setText("OK");
  buttons->button(QDialogButtonBox::Ok)->setDefault(true);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* line = new QHBoxLayout;
  line->addWidget(label);
  line->addWidget(number_);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(line);
  layout->addWidget(buttons);
  setUpKeyboard(this);
}

void OrderNumberDialog::accept() {
  prompt_.setOrderNo(number_->text().toStdString());
  number_->setText(QString::fromStdString(prompt_.orderNo()));
  if (prompt_.ok()) QDialog::accept();
}
