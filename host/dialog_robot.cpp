#include "host/dialog_robot.h"

#include <QApplication>
#include <QDynamicPropertyChangeEvent>
#include <QEvent>
#include <QFileDialog>
#include <QMessageBox>
#include <QTimer>

#include "connectvorn/connectvorn.h"
#include "host/transcript.h"

namespace {

// A screen's heading is its "heading" property when it has one, else its window title.
std::string headingOf(const QWidget& screen) {
  const QVariant heading = screen.property("heading");
  return (heading.isValid() ? heading.toString() : screen.windowTitle()).toStdString();
}

bool isScreen(QObject* watched) {
  auto* dialog = qobject_cast<QDialog*>(watched);
  return dialog && !qobject_cast<QMessageBox*>(dialog) && !qobject_cast<QFileDialog*>(dialog);
}

}  // namespace

bool DialogRobot::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::DynamicPropertyChange && isScreen(watched)) {
    auto* change = static_cast<QDynamicPropertyChangeEvent*>(event);
    auto* screen = static_cast<QWidget*>(watched);
    if (change->propertyName() == "heading" && screen->isVisible())
      transcript().line("screen " + otpx::quote(headingOf(*screen)));
    return false;
  }
  if (event->type() != QEvent::Show) return false;
  if (isScreen(watched)) {
    auto* screen = static_cast<QWidget*>(watched);
    transcript().line("screen " + otpx::quote(headingOf(*screen)));
    screens_.push_back(screen);
    return false;
  }
  if (auto* box = qobject_cast<QMessageBox*>(watched)) {
    const std::string text = box->text().toStdString();
    if (box->standardButtons() & QMessageBox::Yes) {
      bool yes = true;
      if (!answers_.empty()) {
        yes = answers_.front();
        answers_.pop_front();
      }
      transcript().line("question " + otpx::quote(text) + " -> " + (yes ? "yes" : "no"));
      QTimer::singleShot(0, box,
                         [box, yes] { box->done(yes ? QMessageBox::Yes : QMessageBox::No); });
    } else {
      // A box with a caption of its own (not the terminal's name) shows it before its text.
      const std::string title = box->windowTitle().toStdString();
      const bool own =
          !title.empty() && box->windowTitle() != QApplication::applicationDisplayName();
      transcript().line("msgbox " + (own ? otpx::quote(title) + " " : "") + otpx::quote(text));
      QTimer::singleShot(0, box, [box] { box->done(QMessageBox::Ok); });
    }
    return false;
  }
  if (auto* chooser = qobject_cast<QFileDialog*>(watched)) {
    if (files_.empty()) {
      QTimer::singleShot(0, chooser, [chooser] { chooser->reject(); });
      return false;
    }
    const QString file = files_.front();
    files_.pop_front();
    QTimer::singleShot(0, chooser, [chooser, file] {
      chooser->selectFile(file);
      QMetaObject::invokeMethod(chooser, "accept");
    });
  }
  return false;
}

QWidget* DialogRobot::activeScreen() {
  while (!screens_.empty() && (!screens_.back() || !screens_.back()->isVisible()))
    screens_.pop_back();
  return screens_.empty() ? nullptr : screens_.back().data();
}
