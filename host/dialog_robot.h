// In headless runs, answers the modal dialogs the plug-in opens the way the script says, and
// puts each on the transcript: message boxes are acknowledged, Yes/No questions take the next
// scripted answer (yes when none), file choosers take the next scripted file (cancelled when
// none).
#pragma once

#include <QObject>
#include <QString>
#include <deque>

class DialogRobot : public QObject {
 public:
  void queueAnswer(bool yes) { answers_.push_back(yes); }
  void queueFile(const QString& path) { files_.push_back(path); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::deque<bool> answers_;
  std::deque<QString> files_;
};
