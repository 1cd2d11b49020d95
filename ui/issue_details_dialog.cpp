#include "ui/issue_details_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTimeEdit>
#include <QVBoxLayout>

#include "plugin/control_block.h"
#include "ui/dialog_keys.h"
#include "ui/entry_widgets.h"

namespace {

constexpr char kDateFormat[] = "dd/MM/yyyy";
constexpr char kTimeFormat[] = "HH:mm:ss";

size_t at(IssueText t) {
  return static_cast<size_t>(t);
}

// The fields as an administrator reads an issue: what it is, its prices, its days, its
// quantities and limits, its discount, its texts.
constexpr IssueText kLayout[] = {
    IssueText::SymbolName,
    IssueText::Isin,
    IssueText::FaceValue,
    IssueText::TickSize,
    IssueText::FloorPrice,
    IssueText::RmsPrice,
    IssueText::CeilingPrice,
    IssueText::IndicativePrice,
    IssueText::StartDate,
    IssueText::CloseDate,
    IssueText::FinalModificationDate,
    IssueText::ClosingTime,
    IssueText::MinQuantity,
    IssueText::MultipleQuantity,
    IssueText::OfsSize,
    IssueText::RetailLimit,
    IssueText::NonRetailLimit,
    IssueText::Discount,
    IssueText::IssueNotes,
    IssueText::ProspectusUrl,
    IssueText::CompanyName,
    IssueText::UnderlyingToken,
};

}  // namespace

IssueDetailsDialog::IssueDetailsDialog(COFSControlBlock& block, QWidget* parent)
    : QDialog(parent), block_(block), screen_(block) {
  setObjectName("IssueDetails");
  auto* grid = new QGridLayout;
  int cell = 0;
  auto place = [&](const char* label, QWidget* field) {
    auto* caption = new QLabel(label, this);
    caption->setBuddy(field);
    grid->addWidget(caption, cell / 2, (cell % 2) * 2);
    grid->addWidget(field, cell / 2, (cell % 2) * 2 + 1);
    ++cell;
  };
  for (size_t i = 0; i < kIssueListCount; ++i) {
    lists_[i] = new QComboBox(this);
    const auto list = static_cast<IssueList>(i);
    connect(lists_[i], &QComboBox::textActivated, this, [this, list](const QString& text) {
      screen_.select(list, text.toStdString());
      fieldsChanged();
    });
  }
  place(kIssueListLabels[0], lists_[0]);
  place(kIssueListLabels[1], lists_[1]);
  for (IssueText t : kLayout) {
    place(kIssueTexts[at(t)].label, fieldFor(t));
    if (t == IssueText::NonRetailLimit) place(kIssueListLabels[2], lists_[2]);
  }
  place(kIssueListLabels[3], lists_[3]);
  place(kIssueListLabels[4], lists_[4]);

  cutOff_ = new QCheckBox(COFSIssueDetails::kCutOffLabel, this);
  connect(cutOff_, &QCheckBox::clicked, this, [this](bool on) { screen_.setCutOff(on); });
  discountOffered_ = new QCheckBox(COFSIssueDetails::kDiscountOptionLabel, this);
  connect(discountOffered_, &QCheckBox::clicked, this,
          [this](bool on) { screen_.setDiscountOffered(on); });

  submit_ = new QPushButton(this);
  submit_->setDefault(true);
  connect(submit_, &QPushButton::clicked, this, [this] { screen_.submit(); });
  auto* close = new QPushButton("Close", this);
  close->setAutoDefault(false);
  connect(close, &QPushButton::clicked, this, &QDialog::reject);
  auto* ticks = new QHBoxLayout;
  ticks->addWidget(cutOff_);
  ticks->addWidget(discountOffered_);
  ticks->addStretch();
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(submit_);
  buttons->addWidget(close);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(grid);
  layout->addLayout(ticks);
  layout->addLayout(buttons);

  setUpKeyboard(this);
  followHostFonts(this, block.fontVariation);
  screen_.setListener([this] { fieldsChanged(); });
  fieldsChanged();
  // The answer to a sent issue resets and closes the dialog.
  block_.onEndIssueDialog = [this] {
    hide();
    return screen_.end();
  };
}

IssueDetailsDialog::~IssueDetailsDialog() {
  block_.onEndIssueDialog = nullptr;
}

QWidget* IssueDetailsDialog::fieldFor(IssueText t) {
  const IssueTyping typing = kIssueTexts[at(t)].typing;
  if (typing == IssueTyping::Date) {
    auto* date = new QDateEdit(this);
    date->setDisplayFormat(kDateFormat);
    date->setCalendarPopup(true);
    dates_[at(t) - at(IssueText::StartDate)] = date;
    connect(date, &QDateEdit::dateChanged, this, [this, t](const QDate& d) {
      screen_.setText(t, d.toString(kDateFormat).toStdString());
    });
    return date;
  }
  if (typing == IssueTyping::Time) {
    closingTime_ = new QTimeEdit(this);
    closingTime_->setDisplayFormat(kTimeFormat);
    connect(closingTime_, &QTimeEdit::timeChanged, this, [this, t](const QTime& time) {
      screen_.setText(t, time.toString(kTimeFormat).toStdString());
    });
    return closingTime_;
  }
  auto* edit = new QLineEdit(this);
  if (typing == IssueTyping::Digits || typing == IssueTyping::Price)
    edit->setAlignment(Qt::AlignRight);
  edits_[at(t)] = edit;
  bindText(t, edit);
  return edit;
}

void IssueDetailsDialog::bindText(IssueText field, QLineEdit* edit) {
  // A refused keystroke puts back what the screen holds.
  connect(edit, &QLineEdit::textEdited, this, [this, field, edit](const QString& text) {
    if (!screen_.setText(field, text.toStdString())) showField(edit, screen_.fields()[field]);
  });
}

void IssueDetailsDialog::fieldsChanged() {
  const IssueDetailsFields& f = screen_.fields();
  for (size_t i = 0; i < kIssueTextCount; ++i)
    if (edits_[i]) showField(edits_[i], f.texts[i]);
  for (size_t i = 0; i < dates_.size(); ++i) {
    const QSignalBlocker quiet(dates_[i]);
    dates_[i]->setDate(
        QDate::fromString(q(f.texts[at(IssueText::StartDate) + i].text), kDateFormat));
  }
  {
    const QSignalBlocker quiet(closingTime_);
    closingTime_->setTime(QTime::fromString(q(f[IssueText::ClosingTime].text), kTimeFormat));
  }
  for (size_t i = 0; i < kIssueListCount; ++i) showField(lists_[i], f.lists[i]);
  cutOff_->setChecked(f.cutOff);
  discountOffered_->setChecked(f.discountOffered);
  setWindowTitle(screen_.title());
  setProperty("heading", screen_.title());
  submit_->setText(screen_.buttonText());
}

void IssueDetailsDialog::openOn(const sOFSCol* issue) {
  issue ? screen_.openToModify(*issue) : screen_.openToAdd();
  fieldsChanged();
  show();
  raise();
  activateWindow();
  lists_[0]->setFocus();
}
