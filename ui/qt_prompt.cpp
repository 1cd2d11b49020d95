#include "ui/qt_prompt.h"

#include <QApplication>
#include <QFileDialog>
#include <QLabel>
#include <QWidget>
#include <vector>

#include "ui/msg_box.h"

QWidget* QtPrompt::parentWindow() const {
  if (QWidget* active = QApplication::activeModalWidget()) return active;
  return QApplication::activeWindow();
}

void QtPrompt::message(const std::string& text) {
  CMsgBox box(CMsgBox::Kind::Message, QString::fromStdString(text), parentWindow());
  box.exec();
}

void QtPrompt::titledMessage(const std::string& title, const std::string& text) {
  CMsgBox box(CMsgBox::Kind::Message, QString::fromStdString(text), parentWindow(),
              QString::fromStdString(title));
  box.exec();
}

bool QtPrompt::question(const std::string& text) {
  CMsgBox box(CMsgBox::Kind::Question, QString::fromStdString(text), parentWindow());
  return box.exec() == QMessageBox::Yes;
}

namespace {

// The screens give their filters as "Name (*.x)|*.x|Other (*.y)|*.y||"; Qt reads the patterns
// from the names, joined by ";;".
QString qtFilter(const std::string& filter) {
  const QStringList parts = QString::fromStdString(filter).split('|');
  if (parts.size() < 2) return QString::fromStdString(filter);
  QStringList names;
  for (int i = 0; i < parts.size(); i += 2)
    if (!parts[i].isEmpty()) names << parts[i];
  return names.join(";;");
}

}  // namespace

std::string QtPrompt::chooseFile(bool saving, const std::string& suggestedName,
                                 const std::string& filter) {
  QFileDialog dialog(parentWindow(), QString(), QString(), qtFilter(filter));
  // Qt's own dialog: the same on every desktop, and scriptable by the reference terminal.
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.setAcceptMode(saving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(saving ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  if (!suggestedName.empty()) dialog.selectFile(QString::fromStdString(suggestedName));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  return dialog.selectedFiles().front().toStdString();
}

void QtPrompt::focus(const std::string& field) {
  // The screen that refused is the active window, or (when the platform keeps no active window)
  // a visible one that has the field.
  std::vector<QWidget*> windows;
  if (QWidget* active = QApplication::activeWindow()) windows.push_back(active);
  for (QWidget* w : QApplication::topLevelWidgets())
    if (w->isVisible()) windows.push_back(w);
  const QString label = QString::fromStdString(field);
  for (QWidget* window : windows) {
    for (QLabel* l : window->findChildren<QLabel*>()) {
      if (l->text() == label && l->buddy()) {
        l->buddy()->setFocus();
        return;
      }
    }
    for (QWidget* w : window->findChildren<QWidget*>()) {
      if (w->accessibleName() == label) {
        w->setFocus();
        return;
      }
    }
  }
}
