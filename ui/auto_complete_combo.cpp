#include "ui/auto_complete_combo.h"

#include <QKeyEvent>
#include <QLineEdit>

AutoCompleteCombo::AutoCompleteCombo(QWidget* parent) : QComboBox(parent) {
  setEditable(true);
  setInsertPolicy(QComboBox::NoInsert);
  // Our own completion: Qt's completer would pop up a second list over the entries.
  setCompleter(nullptr);
  connect(this, &QComboBox::textActivated, this, [this](const QString& text) {
    taken_ = text;
    typed_ = false;
  });
}

int AutoCompleteCombo::firstMatch(const QString& typed) const {
  if (typed.isEmpty()) return -1;
  for (int i = 0; i < count(); ++i)
    if (itemText(i).startsWith(typed, Qt::CaseInsensitive)) return i;
  return -1;
}

void AutoCompleteCombo::take() {
  const int match = firstMatch(lineEdit()->text());
  if (match < 0) return;
  setCurrentIndex(match);
  lineEdit()->setText(itemText(match));
  emit activated(match);
  emit textActivated(itemText(match));
}

void AutoCompleteCombo::focusOutEvent(QFocusEvent* event) {
  // Tabbing on from a completed entry takes it, as Enter would have.
  const int match = firstMatch(lineEdit()->text());
  if (typed_ && match >= 0 &&
      itemText(match).compare(lineEdit()->text(), Qt::CaseInsensitive) == 0 &&
      itemText(match) != taken_)
    take();
  QComboBox::focusOutEvent(event);
}

void AutoCompleteCombo::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && !lineEdit()->text().isEmpty()) {
    // Enter after typing takes the completion; otherwise it belongs to the window's default
    // button.
    const int match = firstMatch(lineEdit()->text());
    const bool pending = typed_ && match >= 0 && itemText(match) != taken_;
    if (pending) {
      take();
      event->accept();
      return;
    }
    event->ignore();
    return;
  }
  QComboBox::keyPressEvent(event);
  const QString typed = event->text();
  if (typed.isEmpty() || !typed.at(0).isPrint()) return;
  typed_ = true;
  QLineEdit* edit = lineEdit();
  if (edit->cursorPosition() != edit->text().size()) return;
  const QString start = edit->text();
  const int match = firstMatch(start);
  if (match < 0) return;
  edit->setText(itemText(match));
  edit->setSelection(static_cast<int>(start.size()),
                     static_cast<int>(itemText(match).size() - start.size()));
}
