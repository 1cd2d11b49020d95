#include "host/dialog_robot.h"

#include <QEvent>
#include <QFileDialog>
#include <QMessageBox>
#include <QTimer>

#include "connectvorn/connectvorn.h"
#include "host/transcript.h"

bool DialogRobot::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::Show) return false;
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
      transcript().line("msgbox " + otpx::quote(text));
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
