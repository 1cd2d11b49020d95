#include "ui/order_entry_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "plugin/control_block.h"
#include "ui/client_search_box.h"
#include "ui/dialog_keys.h"
#include "ui/entry_widgets.h"
#include "ui/numeric_edit.h"

OrderEntryDialog::OrderEntryDialog(COFSControlBlock& block, PromptPort& prompt, QWidget* parent)
    : QDialog(parent), screen_(block, prompt) {
  setObjectName("OrderEntry");
  setWindowTitle(COrderEntryDlg::kTitle);
  heading_ = new QLabel(this);
  heading_->setFont(QFont("Verdana", 14, QFont::Bold));

  ofsId_ = new QLineEdit(this);
  quantity_ = new NumericEdit(NumericEdit::Kind::Digits, &prompt, this);
  price_ = new NumericEdit(NumericEdit::Kind::Decimal, &prompt, this);
  orderType_ = new QComboBox(this);
  exchange_ = new QLineEdit(this);
  cutOff_ = new QCheckBox(entry_label::kCutOff, this);
  clientType_ = new QComboBox(this);
  clientCode_ = new ClientSearchBox(block.services, this);
  clientCode_->setObjectName(COrderEntryDlg::kClientSearchName);
  clientSearch_ = new QPushButton("...", this);
  clientSearch_->setAutoDefault(false);
  walkinClient_ = new QLineEdit(this);
  walkinClient_->setAccessibleName(entry_label::kWalkinClientCode);
  walkinClient_->setPlaceholderText("Walkin client code");
  walkinParticipant_ = new QLineEdit(this);
  walkinParticipant_->setAccessibleName(entry_label::kWalkinParticipantCode);
  walkinParticipant_->setPlaceholderText("Walkin participant code");
  category_ = new QComboBox(this);
  margin_ = new QComboBox(this);
  participantCode_ = new QComboBox(this);
  indicativePrice_ = new QLineEdit(this);
  for (QLineEdit* readOnly : {ofsId_, exchange_, indicativePrice_}) readOnly->setReadOnly(true);

  auto* form = new QFormLayout;
  auto row = [&](const char* label, QWidget* field) {
    auto* caption = new QLabel(label, this);
    caption->setBuddy(field);
    form->addRow(caption, field);
  };
  row(entry_label::kOfsId, ofsId_);
  row(entry_label::kQuantity, quantity_);
  row(entry_label::kPrice, price_);
  form->addRow(QString(), cutOff_);
  row(entry_label::kOrderType, orderType_);
  row(entry_label::kExchange, exchange_);
  row(entry_label::kProCli, clientType_);
  auto* clientRow = new QHBoxLayout;
  clientRow->addWidget(clientCode_);
  clientRow->addWidget(clientSearch_);
  auto* clientCaption = new QLabel(entry_label::kClientCode, this);
  clientCaption->setBuddy(clientCode_);
  form->addRow(clientCaption, clientRow);
  form->addRow(QString(), walkinClient_);
  form->addRow(QString(), walkinParticipant_);
  row(entry_label::kClientCategory, category_);
  row(entry_label::kMargin, margin_);
  row(entry_label::kParticipantCode, participantCode_);
  row(entry_label::kIndicativePrice, indicativePrice_);

  submit_ = new QPushButton(this);
  submit_->setDefault(true);  // Enter submits
  auto* close = new QPushButton("Close", this);
  close->setAutoDefault(false);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(submit_);
  buttons->addWidget(close);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(heading_);
  layout->addLayout(form);
  layout->addLayout(buttons);

  bindText(quantity_, &COrderEntryDlg::setQuantity);
  bindText(price_, &COrderEntryDlg::setPrice);
  bindText(clientCode_, &COrderEntryDlg::setClientCode);
  bindText(walkinClient_, &COrderEntryDlg::setWalkinClientCode);
  bindText(walkinParticipant_, &COrderEntryDlg::setWalkinParticipantCode);
  bindChoice(orderType_, &COrderEntryDlg::selectOrderType);
  bindChoice(clientType_, &COrderEntryDlg::selectClientType);
  bindChoice(category_, &COrderEntryDlg::selectClientCategory);
  bindChoice(margin_, &COrderEntryDlg::selectMargin);
  bindChoice(participantCode_, &COrderEntryDlg::selectParticipantCode);
  connect(cutOff_, &QCheckBox::clicked, this, [this](bool ticked) {
    if (!screen_.setCutOff(ticked)) fieldsChanged();
  });
  connect(clientSearch_, &QPushButton::clicked, this, [this] {
    clientCode_->setFocus();
    clientCode_->searchNow();
  });
  connect(clientCode_, &ClientSearchBox::clientChosen, this, [this](const QString& id) {
    if (!screen_.setClientCode(id.toStdString())) fieldsChanged();
  });
  connect(submit_, &QPushButton::clicked, this, [this] { screen_.submit(); });
  connect(close, &QPushButton::clicked, this, &QDialog::reject);

  screen_.setListener(this);
  headingChanged();
  setUpKeyboard(this);
  followHostFonts(this, block.fontVariation);
}

void OrderEntryDialog::bindText(QLineEdit* edit,
                                bool (COrderEntryDlg::*setter)(const std::string&)) {
  // A refused keystroke puts back what the screen holds.
  connect(edit, &QLineEdit::textEdited, this, [this, setter](const QString& text) {
    if (!(screen_.*setter)(text.toStdString())) fieldsChanged();
  });
}

void OrderEntryDialog::bindChoice(QComboBox* list,
                                  bool (COrderEntryDlg::*select)(const std::string&)) {
  connect(list, &QComboBox::textActivated, this, [this, select](const QString& text) {
    if (!(screen_.*select)(text.toStdString())) choicesChanged();
  });
}

void OrderEntryDialog::fieldsChanged() {
  const OrderEntryFields& f = screen_.fields();
  showField(ofsId_, f.ofsId);
  showField(quantity_, f.quantity);
  showField(price_, f.price);
  showField(exchange_, f.exchange);
  showField(clientCode_, f.clientCode);
  showField(walkinClient_, f.walkinClientCode);
  showField(walkinParticipant_, f.walkinParticipantCode);
  showField(indicativePrice_, f.indicativePrice);
  clientSearch_->setEnabled(f.clientSearchEnabled);
  clientSearch_->setVisible(f.clientCode.visible);
  cutOff_->setChecked(f.cutOff);
  cutOff_->setEnabled(f.cutOffEnabled);
}

void OrderEntryDialog::choicesChanged() {
  const OrderEntryFields& f = screen_.fields();
  showField(orderType_, f.orderType);
  showField(clientType_, f.clientType);
  showField(category_, f.clientCategory);
  showField(margin_, f.margin);
  showField(participantCode_, f.participantCode);
}

void OrderEntryDialog::headingChanged() {
  heading_->setText(q(screen_.heading()));
  submit_->setText(q(screen_.buttonText()));
  setProperty("heading", q(screen_.heading()));
}

void OrderEntryDialog::present() {
  fieldsChanged();
  choicesChanged();
  headingChanged();
  show();
  raise();
  activateWindow();
  quantity_->setFocus();
}

void OrderEntryDialog::openNewBid(const sOFSCol& issue) {
  screen_.open(issue);
  present();
}

void OrderEntryDialog::openModification(const sOFSOrderInfo& order, const sOFSCol& issue) {
  screen_.openForModification(order, issue);
  present();
}
