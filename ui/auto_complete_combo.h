// A list the dealer can type into: what is typed completes to the first entry that begins with
// it (the completed part selected, so typing on replaces it), and Enter takes that entry.
#pragma once

#include <QComboBox>

class AutoCompleteCombo : public QComboBox {
 public:
  explicit AutoCompleteCombo(QWidget* parent = nullptr);

  // The first entry that begins with `typed`, ignoring case; -1 when none does.
  int firstMatch(const QString& typed) const;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void take();

  QString taken_;       // the entry last taken, by Enter or from the list
  bool typed_ = false;  // typed into since then
};
