#include "ui/modify_price_dialog.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include "orderbook/modify_price_checks.h"
#include "plugin/control_block.h"
#include "ui/dialog_keys.h"
#include "ui/modify_price_model.h"
#include "ui/numeric_edit.h"

ModifyPriceDialog::ModifyPriceDialog(COFSControlBlock& block, QWidget* parent)
    : QDialog(parent), screen_(block) {
  setObjectName("ModifyPrice");
  setWindowTitle(CModifyOrderPrice::kTitle);
  setProperty("dumpName", "modify-price");
  setProperty("dumpLists", QStringList{"orders"});
  heading_ = new QLabel(this);

  model_ = new ModifyPriceModel(screen_, this);
  auto* orders = new QTableView(this);
  orders->setObjectName("orders");
  orders->setAccessibleName("Orders");
  orders->setModel(model_);
  orders->verticalHeader()->hide();
  orders->setEditTriggers(QAbstractItemView::NoEditTriggers);
  orders->setSelectionBehavior(QAbstractItemView::SelectRows);
  orders->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);

  price_ = new NumericEdit(NumericEdit::Kind::Decimal, &block.prompt(), this);
  quantity_ = new NumericEdit(NumericEdit::Kind::Digits, &block.prompt(), this);
  auto* form = new QFormLayout;
  for (auto [label, field] :
       {std::pair{kModifyPriceLabel, price_}, std::pair{kModifyQuantityLabel, quantity_}}) {
    auto* caption = new QLabel(label, this);
    caption->setBuddy(field);
    form->addRow(caption, field);
  }

  auto* ok = new QPushButton("OK", this);
  ok->setDefault(true);  // Enter sends
  auto* cancel = new QPushButton("Cancel", this);
  cancel->setAutoDefault(false);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(ok);
  buttons->addWidget(cancel);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(heading_);
  layout->addWidget(orders);
  layout->addLayout(form);
  layout->addLayout(buttons);
  resize(460, 360);

  bindText(price_, &CModifyOrderPrice::setPrice);
  bindText(quantity_, &CModifyOrderPrice::setQuantity);
  connect(ok, &QPushButton::clicked, this, [this] { screen_.ok(); });
  connect(cancel, &QPushButton::clicked, this, [this] { screen_.cancel(); });
  screen_.setListener(this);
  setUpKeyboard(this);
  followHostFonts(this, block.fontVariation);
}

ModifyPriceDialog::~ModifyPriceDialog() {
  screen_.setListener(nullptr);
}

void ModifyPriceDialog::bindText(QLineEdit* edit,
                                 bool (CModifyOrderPrice::*setter)(const std::string&)) {
  // A refused keystroke puts back what the screen holds.
  connect(edit, &QLineEdit::textEdited, this, [this, setter](const QString& text) {
    if (!(screen_.*setter)(text.toStdString())) fieldsChanged();
  });
}

void ModifyPriceDialog::present(std::vector<sOFSOrderInfo*> orders, const std::string& heading) {
  screen_.load(std::move(orders), heading);
  fieldsChanged();
  raise();
  activateWindow();
  price_->setFocus();
}

void ModifyPriceDialog::reject() {
  screen_.cancel();
}

void ModifyPriceDialog::fieldsChanged() {
  const QString price = QString::fromStdString(screen_.priceText());
  const QString quantity = QString::fromStdString(screen_.quantityText());
  if (price_->text() != price) price_->setText(price);
  if (quantity_->text() != quantity) quantity_->setText(quantity);
}

void ModifyPriceDialog::rowsResetting() {
  model_->resetting();
}

void ModifyPriceDialog::rowsReset() {
  model_->reset();
  const QString heading = QString::fromStdString(screen_.heading());
  heading_->setText(heading);
  setProperty("heading", heading);
}

void ModifyPriceDialog::visibilityChanged() {
  if (screen_.visible()) {
    show();
  } else {
    hide();
  }
}
