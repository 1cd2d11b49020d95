#include "host/screen_driver.h"

#include <QAbstractButton>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTableView>
#include <QWidget>

namespace {

// "&Quantity :" reads "Quantity".
QString plain(QString text) {
  text.remove('&');
  text = text.trimmed();
  while (text.endsWith(':')) text.chop(1);
  return text.trimmed();
}

QWidget* findField(QWidget& screen, const std::string& label) {
  const QString wanted = QString::fromStdString(label);
  for (QLabel* l : screen.findChildren<QLabel*>())
    if (l->buddy() && plain(l->text()) == wanted) return l->buddy();
  for (QWidget* w : screen.findChildren<QWidget*>())
    if (w->accessibleName() == wanted) return w;
  for (QAbstractButton* b : screen.findChildren<QAbstractButton*>())
    if (b->isCheckable() && plain(b->text()) == wanted) return b;
  return nullptr;
}

std::string missing(const std::string& label) {
  return "the open screen has no field \"" + label + "\"";
}

}  // namespace

std::string setField(QWidget& screen, const std::string& label, const std::string& text) {
  QWidget* field = findField(screen, label);
  const QString value = QString::fromStdString(text);
  if (auto* edit = qobject_cast<QLineEdit*>(field)) {
    if (!edit->isEnabled() || edit->isReadOnly()) return "\"" + label + "\" cannot be typed into";
    edit->setFocus();
    edit->setText(value);
    emit edit->textEdited(value);
    emit edit->editingFinished();
    return {};
  }
  if (auto* combo = qobject_cast<QComboBox*>(field); combo && combo->isEditable()) {
    combo->setEditText(value);
    emit combo->textActivated(value);
    return {};
  }
  // Date and time pickers take the text in the form they show.
  if (auto* picker = qobject_cast<QDateTimeEdit*>(field)) {
    const QDateTime when = QDateTime::fromString(value, picker->displayFormat());
    if (!when.isValid()) return "\"" + label + "\" does not take \"" + text + "\"";
    picker->setDateTime(when);
    return {};
  }
  if (auto* area = qobject_cast<QPlainTextEdit*>(field)) {
    area->setPlainText(value);
    return {};
  }
  return field ? "\"" + label + "\" is not a text field" : missing(label);
}

namespace {

// A list's rows carry their own tick boxes: "tick 2 on" ticks the second row of the screen's
// first list.
std::string tickRow(QWidget& screen, const std::string& label, bool on) {
  const QStringList lists = screen.property("dumpLists").toStringList();
  auto* table = lists.isEmpty() ? nullptr : screen.findChild<QTableView*>(lists.front());
  bool isNumber = false;
  const int row = QString::fromStdString(label).toInt(&isNumber) - 1;
  if (!table || !isNumber) return "the open screen has no tick box \"" + label + "\"";
  if (row < 0 || row >= table->model()->rowCount()) return "no row " + label + " to tick";
  table->model()->setData(table->model()->index(row, 0), on ? Qt::Checked : Qt::Unchecked,
                          Qt::CheckStateRole);
  return {};
}

}  // namespace

std::string tickBox(QWidget& screen, const std::string& label, bool on) {
  auto* box = qobject_cast<QAbstractButton*>(findField(screen, label));
  if (!box) return tickRow(screen, label, on);
  if (!box || !box->isCheckable()) return "the open screen has no tick box \"" + label + "\"";
  if (!box->isEnabled()) return "\"" + label + "\" is disabled";
  if (box->isChecked() != on) box->click();
  return {};
}

std::string pickChoice(QWidget& screen, const std::string& label, const std::string& choice) {
  auto* combo = qobject_cast<QComboBox*>(findField(screen, label));
  if (!combo) return "the open screen has no list \"" + label + "\"";
  if (!combo->isEnabled()) return "\"" + label + "\" is disabled";
  const int index = combo->findText(QString::fromStdString(choice));
  if (index < 0) return "\"" + label + "\" offers no \"" + choice + "\"";
  combo->setCurrentIndex(index);
  emit combo->activated(index);
  emit combo->textActivated(combo->itemText(index));
  return {};
}

std::string pressButton(QWidget& screen, const std::string& text) {
  const QString wanted = QString::fromStdString(text);
  for (QAbstractButton* b : screen.findChildren<QAbstractButton*>()) {
    if (b->isCheckable() || plain(b->text()) != wanted) continue;
    if (!b->isEnabled() || !b->isVisible()) return "\"" + text + "\" is disabled";
    b->click();
    return {};
  }
  for (QAction* a : screen.findChildren<QAction*>()) {
    if (plain(a->text().section('\t', 0, 0)) != wanted) continue;
    if (!a->isEnabled()) return "\"" + text + "\" is disabled";
    a->trigger();
    return {};
  }
  return "the open screen has no button \"" + text + "\"";
}
