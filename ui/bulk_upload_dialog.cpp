#include "ui/bulk_upload_dialog.h"

#include <algorithm>

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QProgressDialog>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>
#include <memory>

#include "plugin/control_block.h"
#include "ui/auto_complete_combo.h"
#include "ui/bulk_upload_model.h"
#include "ui/dialog_keys.h"
#include "ui/entry_widgets.h"
#include "ui/numeric_edit.h"
#include "ui/splitter_frame.h"

namespace {

// A progress window that shows only when the work outlasts a moment; progress is in per mille
// so that files beyond 2 GB fit the bar.
std::unique_ptr<QProgressDialog> progressWindow(QWidget* parent, const char* label,
                                                bool cancellable) {
  auto window =
      std::make_unique<QProgressDialog>(label, cancellable ? "Cancel" : QString(), 0, 1000, parent);
  if (!cancellable) window->setCancelButton(nullptr);
  window->setWindowModality(Qt::WindowModal);
  window->setMinimumDuration(500);
  return window;
}

int perMille(long done, long total) {
  return total > 0 ? static_cast<int>(done * 1000 / total) : 0;
}

}  // namespace

BulkUploadDialog::BulkUploadDialog(COFSControlBlock& block, QWidget* parent)
    : QDialog(parent), prompt_(block.prompt()), screen_(block) {
  setObjectName("BulkUpload");
  setWindowTitle(CBulkUpload::kTitle);
  setProperty("dumpName", "bulk");
  setProperty("dumpLists", QStringList{"bulk"});

  fileType_ = new QComboBox(this);
  for (BidFileKind kind : CBulkUpload::kFileKinds) fileType_->addItem(bidFileKindText(kind));
  connect(fileType_, &QComboBox::activated, this, [this](int index) {
    screen_.selectKind(CBulkUpload::kFileKinds[static_cast<size_t>(index)]);
  });
  auto* fileTypeLabel = new QLabel("File Type", this);
  fileTypeLabel->setBuddy(fileType_);

  model_ = new BulkGridModel(screen_, this);
  grid_ = new QTableView(this);
  grid_->setObjectName("bulk");
  grid_->setAccessibleName("Bulk Orders");
  grid_->setModel(model_);
  grid_->setSelectionBehavior(QAbstractItemView::SelectRows);
  grid_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  grid_->verticalHeader()->hide();
  // Rows of one height need no measuring, which keeps a million rows quick to scroll.
  grid_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);

  refusedModel_ = new BulkRefusedModel(screen_, this);
  refused_ = new QListView(this);
  refused_->setObjectName("refused");
  refused_->setAccessibleName("Refused Orders");
  refused_->setModel(refusedModel_);
  refused_->setUniformItemSizes(true);

  status_ = new QLabel(this);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(fileTypeLabel);
  buttons->addWidget(fileType_);
  buttons->addWidget(button("Browse", [this] { browse(); }));
  place_ = button("Place", [this] { place(); });
  buttons->addWidget(place_);
  buttons->addWidget(button("Export List", [this] { screen_.exportList(); }));
  buttons->addWidget(button("Reset", [this] { screen_.reset(); }));
  buttons->addWidget(button("Delete", [this] { deleteRow(); }));
  exportInvalid_ = button("Export Invalid Orders", [this] { screen_.exportInvalid(); });
  buttons->addWidget(exportInvalid_);
  buttons->addStretch(1);

  auto* entry = new QWidget(this);
  auto* entryLayout = new QVBoxLayout(entry);
  entryLayout->setContentsMargins(0, 0, 0, 0);
  entryLayout->addWidget(entryFields());
  entryLayout->addLayout(buttons);
  auto* panes = new SplitterFrame(objectName(), this);
  panes->addWidget(entry);
  panes->addWidget(grid_);
  panes->addWidget(refused_);
  panes->setStretchFactor(1, 4);
  panes->setStretchFactor(2, 1);
  panes->restoreSizes();
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(panes, 1);
  layout->addWidget(status_);
  screen_.setListener(this);
  setUpKeyboard(this);
  resize(1000, 600);
  followHostFonts(this, block.fontVariation);
}

BulkUploadDialog::~BulkUploadDialog() {
  screen_.setListener(nullptr);
}

QWidget* BulkUploadDialog::entryFields() {
  auto* box = new QWidget(this);
  auto* grid = new QGridLayout(box);
  grid->setContentsMargins(0, 0, 0, 0);
  int at = 0;
  auto place = [&](const char* label, QWidget* field) {
    auto* caption = new QLabel(label, box);
    caption->setBuddy(field);
    grid->addWidget(caption, at / 4, (at % 4) * 2);
    grid->addWidget(field, at / 4, (at % 4) * 2 + 1);
    ++at;
  };
  place("OFS Id", text(&BulkEntry::ofsId));
  place("Exchange", choice(&BulkEntry::exchange, {"NSEIPO", "BSEIPO"}));
  place("Quantity",
        text(&BulkEntry::quantity, new NumericEdit(NumericEdit::Kind::Digits, &prompt_, box)));
  place("Price",
        text(&BulkEntry::price, new NumericEdit(NumericEdit::Kind::Decimal, &prompt_, box)));
  QComboBox* orderType = choice(&BulkEntry::orderType,
                                {"", "Retail", "Non-institutional", "Institutional", "Employee"});
  disconnect(orderType, &QComboBox::textActivated, this, nullptr);
  connect(orderType, &QComboBox::textActivated, this,
          [this](const QString& type) { screen_.selectOrderType(type.toStdString()); });
  place("Order Type", orderType);
  place("Pro/Cli", choice(&BulkEntry::proCli, {"CLI", "PRO"}));
  clientId_ = new AutoCompleteCombo(box);
  connect(clientId_, &QComboBox::textActivated, this,
          [this](const QString& account) { screen_.selectClientId(account.toStdString()); });
  place("Client ID", clientId_);
  place("Client Category", text(&BulkEntry::category));
  place("Participant code", text(&BulkEntry::pCode));
  place("Margin", choice(&BulkEntry::margin, {"No Margin", "100% Margin"}));
  cutOffAllowed_ = new QLineEdit(box);
  cutOffAllowed_->setReadOnly(true);
  place("CutOff", cutOffAllowed_);
  cutOff_ = new QCheckBox("Cut Off", box);
  connect(cutOff_, &QCheckBox::clicked, this, [this](bool ticked) {
    screen_.entry().cutOff = ticked;
    // A cut-off bid is at the market; unticked, the price is typed again.
    screen_.entry().price = ticked ? std::string("MKT") : std::string();
    fieldsChanged();
  });
  grid->addWidget(cutOff_, at / 4, (at % 4) * 2 + 1);
  QPushButton* add = button("Add", [this] { screen_.add(); });
  add->setDefault(true);  // Enter adds the bid
  grid->addWidget(add, at / 4, (at % 4) * 2 + 2);
  return box;
}

QLineEdit* BulkUploadDialog::text(std::string BulkEntry::*field, QLineEdit* edit) {
  if (!edit) edit = new QLineEdit(this);
  connect(edit, &QLineEdit::textEdited, this,
          [this, field](const QString& typed) { screen_.entry().*field = typed.toStdString(); });
  texts_.emplace_back(edit, field);
  return edit;
}

QComboBox* BulkUploadDialog::choice(std::string BulkEntry::*field, const QStringList& items) {
  auto* list = new QComboBox(this);
  list->addItems(items);
  connect(list, &QComboBox::textActivated, this,
          [this, field](const QString& chosen) { screen_.entry().*field = chosen.toStdString(); });
  choices_.emplace_back(list, field);
  return list;
}

QPushButton* BulkUploadDialog::button(const char* text, const std::function<void()>& run) {
  auto* pushed = new QPushButton(text, this);
  pushed->setAutoDefault(false);
  connect(pushed, &QPushButton::clicked, this, run);
  return pushed;
}

void BulkUploadDialog::browse() {
  std::unique_ptr<QProgressDialog> window;
  screen_.browse([this, &window](long done, long total) {
    if (!window) window = progressWindow(this, "Loading Basket. Please Wait....", true);
    window->setValue(perMille(done, total));
    QCoreApplication::processEvents();
    return !window->wasCanceled();
  });
}

void BulkUploadDialog::place() {
  std::unique_ptr<QProgressDialog> window;
  screen_.place([this, &window](size_t done, size_t total) {
    if (done % 256 != 0) return;
    if (!window) window = progressWindow(this, "Placing Basket Orders....", false);
    window->setValue(perMille(static_cast<long>(done), static_cast<long>(total)));
    QCoreApplication::processEvents();
  });
}

void BulkUploadDialog::deleteRow() {
  const QModelIndex current = grid_->currentIndex();
  if (current.isValid()) screen_.deleteRow(static_cast<size_t>(current.row()));
}

void BulkUploadDialog::openOn(const sOFSCol* issue) {
  clientId_->clear();
  for (const std::string& account : screen_.accounts()) clientId_->addItem(q(account));
  screen_.open(issue);
  rowsChanged();
  show();
  raise();
  activateWindow();
}

void BulkUploadDialog::fieldsChanged() {
  const BulkEntry& entry = screen_.entry();
  for (auto& [edit, field] : texts_) {
    if (edit->text().toStdString() != entry.*field) edit->setText(q(entry.*field));
  }
  for (auto& [list, field] : choices_) list->setCurrentText(q(entry.*field));
  cutOff_->setChecked(entry.cutOff);
  clientId_->setCurrentText(q(entry.clientId));
  cutOffAllowed_->setText(q(screen_.cutOffAllowed()));
  const auto kind =
      std::find(CBulkUpload::kFileKinds.begin(), CBulkUpload::kFileKinds.end(), screen_.kind());
  fileType_->setCurrentIndex(static_cast<int>(kind - CBulkUpload::kFileKinds.begin()));
  status_->setText(q(screen_.status()));
  // A load runs without the event loop: the waiting text must be drawn before it starts.
  if (status_->isVisible()) status_->repaint();
  place_->setEnabled(screen_.placeEnabled());
  exportInvalid_->setVisible(screen_.exportInvalidShown());
  refused_->setVisible(screen_.exportInvalidShown());
}

void BulkUploadDialog::rowsChanged() {
  model_->refresh();
  refusedModel_->refresh();
}
