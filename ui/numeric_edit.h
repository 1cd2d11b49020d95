// A text field for numbers: a typed character that cannot be part of one is refused with the
// plug-in's message, and the field keeps what it had.
#pragma once

#include <QLineEdit>

class PromptPort;

class NumericEdit : public QLineEdit {
 public:
  enum class Kind { Digits, Decimal };  // Decimal: digits and at most one point

  // Without a prompt the refusal is silent: the screen behind the field answers it.
  NumericEdit(Kind kind, PromptPort* prompt, QWidget* parent = nullptr);

  // Whether `typed`, replacing the selection, keeps the text a number of this kind.
  bool accepts(const QString& typed) const;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  Kind kind_;
  PromptPort* prompt_;
};
