// In headless runs, answers the modal dialogs the plug-in opens the way the script says, and
// puts each on the transcript: message boxes are acknowledged, Yes/No questions take the next
// scripted answer (yes when none), file choosers take the next scripted file (cancelled when
// none).
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QWidget>
#include <deque>
#include <vector>

class DialogRobot : public QObject {
 public:
  void queueAnswer(bool yes) { answers_.push_back(yes); }
  void queueFile(const QString& path) { files_.push_back(path); }
  // The screen shown last that is still visible: the one `set`, `tick`, `pick` and `press`
  // reach. Null when none is.
  QWidget* activeScreen();
  // A screen that is no dialog (the docked order book) becomes the one `press` reaches once a
  // script selects in one of its lists.
  void makeActive(QWidget* screen) { screens_.push_back(screen); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::deque<bool> answers_;
  std::deque<QString> files_;
  std::vector<QPointer<QWidget>> screens_;
};
