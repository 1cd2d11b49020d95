// The order entry's client code field. While the dealer types, after the host's search delay,
// the host's client search runs and its results show in a list under the field: arrow keys
// move, Enter takes, Esc closes. Without the host's search services the field is plain text.
#pragma once

#include <QLineEdit>
#include <QTimer>

#include "plugin/host_service_table.h"

class QListWidget;

class ClientSearchBox : public QLineEdit {
  Q_OBJECT

 public:
  static constexpr int kDefaultDelayMs = 300;

  ClientSearchBox(const HostServiceTable& services, QWidget* parent = nullptr);
  ~ClientSearchBox() override;

  // Runs the search at once (the "..." button).
  void searchNow();
  bool resultsShown() const;
  QListWidget* results() const { return list_; }
  int delayMs() const { return timer_.interval(); }

 signals:
  // A result was taken: the field shows `clientId` and the screen should take it.
  void clientChosen(const QString& clientId);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void changeEvent(QEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void showResults(const StringList& found);
  void take(int row);

  const HostServiceTable& services_;
  QTimer timer_;
  QListWidget* list_;
};
