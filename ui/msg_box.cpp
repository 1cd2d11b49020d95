#include "ui/msg_box.h"

#include <QApplication>

CMsgBox::CMsgBox(Kind kind, const QString& text, QWidget* parent, const QString& title)
    : QMessageBox(parent) {
  setWindowTitle(title.isEmpty() ? QApplication::applicationDisplayName() : title);
  setText(text);
  setTextInteractionFlags(Qt::TextSelectableByMouse);
  if (kind == Kind::Question) {
    setIcon(QMessageBox::Question);
    setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    setDefaultButton(QMessageBox::Yes);
    setEscapeButton(QMessageBox::No);
  } else {
    setStandardButtons(QMessageBox::Ok);
    setDefaultButton(QMessageBox::Ok);
    setEscapeButton(QMessageBox::Ok);
  }
}
