// The plug-in's own message box: captioned with the terminal's name unless a caption is given,
// Enter presses the default button, Esc answers No or closes.
#pragma once

#include <QMessageBox>

class CMsgBox : public QMessageBox {
 public:
  enum class Kind { Message, Question };

  CMsgBox(Kind kind, const QString& text, QWidget* parent, const QString& title = QString());
};
