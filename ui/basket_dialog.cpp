#include "ui/basket_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include "plugin/control_block.h"
#include "ui/basket_list_model.h"
#include "ui/dialog_keys.h"
#include "ui/entry_widgets.h"
#include "ui/list_look.h"
#include "ui/numeric_edit.h"
#include "ui/splitter_frame.h"

using namespace basket_label;

BasketDialog::BasketDialog(COFSControlBlock& block, QWidget* parent)
    : QDialog(parent), screen_(block) {
  setObjectName("BasketOrder");
  setProperty("dumpName", "basket");
  setProperty("dumpLists", QStringList{"basket"});
  auto* grid = new QGridLayout;
  int at = 0;
  auto place = [&](const char* label, QWidget* field) {
    auto* caption = new QLabel(label, this);
    caption->setBuddy(field);
    grid->addWidget(caption, at / 3, (at % 3) * 2);
    grid->addWidget(field, at / 3, (at % 3) * 2 + 1);
    ++at;
  };
  // The issue's facts first, then the bid.
  const std::pair<const char*, QLineEdit**> facts[] = {
      {kExchange, &exchange_}, {kCompanyName, &companyName_}, {kIssueId, &issueId_},
      {kOpenDate, &openDate_}, {kCloseDate, &closeDate_},     {kMinQty, &minQty_}};
  for (const auto& fact : facts) {
    *fact.second = new QLineEdit(this);
    (*fact.second)->setReadOnly(true);
    place(fact.first, *fact.second);
  }
  orderType_ = new QComboBox(this);
  quantity_ = new NumericEdit(NumericEdit::Kind::Digits, &block.prompt(), this);
  price_ = new NumericEdit(NumericEdit::Kind::Decimal, &block.prompt(), this);
  clientId_ = new QComboBox(this);
  margin_ = new QComboBox(this);
  participantCode_ = new QComboBox(this);
  cutOffText_ = new QLineEdit(this);
  cutOffText_->setReadOnly(true);
  place(kClientId, clientId_);
  place(kOrderType, orderType_);
  place(kQuantity, quantity_);
  place(kPrice, price_);
  place(kMargin, margin_);
  place(kParticipantCode, participantCode_);
  place(kCutOffText, cutOffText_);
  cutOff_ = new QCheckBox(kCutOff, this);
  grid->addWidget(cutOff_, at / 3, (at % 3) * 2 + 1);

  model_ = new BasketListModel(screen_, this);
  list_ = new QTableView(this);
  list_->setObjectName("basket");
  list_->setAccessibleName("Basket Orders");
  list_->setModel(model_);
  list_->setSelectionBehavior(QAbstractItemView::SelectRows);
  list_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  list_->verticalHeader()->hide();
  restoreOrFitColumns(list_, "BasketOrder");
  connect(list_, &QTableView::doubleClicked, this,
          [this](const QModelIndex& index) { screen_.editRow(static_cast<size_t>(index.row())); });

  path_ = new QLineEdit(this);
  path_->setReadOnly(true);
  path_->setAccessibleName("Basket File");
  count_ = new QLabel(this);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(path_, 1);
  buttons->addWidget(button("Browse", &CBasketManagerOFS::load));
  buttons->addWidget(button("Export List", &CBasketManagerOFS::save));
  buttons->addWidget(button("Reset", &CBasketManagerOFS::reset));
  place_ = button("Place", &CBasketManagerOFS::place);
  buttons->addWidget(place_);
  add_ = button("Add", &CBasketManagerOFS::add);
  add_->setDefault(true);  // Enter adds the bid
  buttons->addWidget(add_);
  buttons->addWidget(count_);

  auto* entry = new QWidget(this);
  auto* entryLayout = new QVBoxLayout(entry);
  entryLayout->setContentsMargins(0, 0, 0, 0);
  entryLayout->addLayout(grid);
  entryLayout->addLayout(buttons);
  auto* panes = new SplitterFrame(objectName(), this);
  panes->addWidget(entry);
  panes->addWidget(list_);
  panes->setStretchFactor(1, 1);
  panes->restoreSizes();
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(panes);

  bindText(quantity_, &CBasketManagerOFS::setQuantity);
  bindText(price_, &CBasketManagerOFS::setPrice);
  bindChoice(clientId_, &CBasketManagerOFS::selectClientId);
  bindChoice(orderType_, &CBasketManagerOFS::selectOrderType);
  bindChoice(margin_, &CBasketManagerOFS::selectMargin);
  bindChoice(participantCode_, &CBasketManagerOFS::selectParticipantCode);
  connect(cutOff_, &QCheckBox::clicked, this, [this](bool ticked) { screen_.setCutOff(ticked); });
  screen_.setListener(this);
  setUpKeyboard(this);
  resize(900, 520);
}

BasketDialog::~BasketDialog() {
  screen_.setListener(nullptr);
}

QPushButton* BasketDialog::button(const char* text, void (CBasketManagerOFS::*run)()) {
  auto* pushed = new QPushButton(text, this);
  pushed->setAutoDefault(false);
  connect(pushed, &QPushButton::clicked, this, [this, run] { (screen_.*run)(); });
  return pushed;
}

void BasketDialog::bindText(QLineEdit* edit,
                            bool (CBasketManagerOFS::*setter)(const std::string&)) {
  // A refused keystroke puts back what the screen holds.
  connect(edit, &QLineEdit::textEdited, this, [this, setter](const QString& text) {
    if (!(screen_.*setter)(text.toStdString())) fieldsChanged();
  });
}

void BasketDialog::bindChoice(QComboBox* list,
                              bool (CBasketManagerOFS::*select)(const std::string&)) {
  connect(list, &QComboBox::textActivated, this, [this, select](const QString& text) {
    if (!(screen_.*select)(text.toStdString())) fieldsChanged();
  });
}

void BasketDialog::openOn(const sOFSCol* issue) {
  screen_.open(issue);
  rowsChanged();
  show();
  raise();
  activateWindow();
}

void BasketDialog::fieldsChanged() {
  const BasketFields& f = screen_.fields();
  showField(exchange_, f.exchange);
  showField(companyName_, f.companyName);
  showField(issueId_, f.issueId);
  showField(openDate_, f.openDate);
  showField(closeDate_, f.closeDate);
  showField(minQty_, f.minQty);
  showField(cutOffText_, f.cutOffText);
  showField(quantity_, f.quantity);
  showField(price_, f.price);
  showField(orderType_, f.orderType);
  showField(clientId_, f.clientId);
  showField(margin_, f.margin);
  showField(participantCode_, f.participantCode);
  cutOff_->setChecked(f.cutOff);
  path_->setText(q(f.path));
  count_->setText(q(f.count));
  add_->setText(q(screen_.addButtonText()));
  place_->setEnabled(screen_.placeEnabled());
  setWindowTitle(q(screen_.title()));
}

void BasketDialog::rowsChanged() {
  model_->refresh();
}
