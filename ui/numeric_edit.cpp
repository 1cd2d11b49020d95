#include "ui/numeric_edit.h"

#include <QKeyEvent>
#include <algorithm>

#include "domain/prompt_port.h"

NumericEdit::NumericEdit(Kind kind, PromptPort* prompt, QWidget* parent)
    : QLineEdit(parent), kind_(kind), prompt_(prompt) {
  setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

bool NumericEdit::accepts(const QString& typed) const {
  QString kept = text();
  if (hasSelectedText()) kept.remove(selectionStart(), selectedText().size());
  bool point = kept.contains('.');
  for (QChar c : typed) {
    if (c.isDigit()) continue;
    if (c != '.' || kind_ != Kind::Decimal || point) return false;
    point = true;
  }
  return true;
}

void NumericEdit::keyPressEvent(QKeyEvent* event) {
  // Editing keys and shortcuts carry no text or only control characters.
  const QString typed = event->text();
  const bool shortcut =
      event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
  const bool printable =
      !shortcut && !typed.isEmpty() &&
      std::all_of(typed.begin(), typed.end(), [](QChar c) { return c.isPrint(); });
  if (!printable || accepts(typed)) {
    QLineEdit::keyPressEvent(event);
    return;
  }
  event->accept();
  if (prompt_) prompt_->titledMessage("Unacceptable Character", "You can only type a number here.");
}
