// The terminal's main window: a document area for plug-in frames, a tabbed log and a status
// bar with the session (clock, back end, user). It is also the host application object handed
// to plug-ins.
#pragma once

#include <QMainWindow>
#include <vector>

#include "sdk/host_app.h"

class QLabel;
class QMdiArea;
class QPlainTextEdit;
class QTabWidget;

class MainWindow : public QMainWindow, public IVornHostApp, public IVornMainWindow {
  Q_OBJECT

 public:
  MainWindow();

  // IVornHostApp
  IVornMainWindow* GetMainWnd() override { return this; }
  void AddDocTemplate(IVornDocTemplate* docTemplate) override;
  // IVornMainWindow
  bool IsWindow() const override { return true; }
  intptr_t SendMessage(uint32_t message, uintptr_t wparam, intptr_t lparam) override;

  QMdiArea* documentArea() const { return area_; }
  void appendLog(const QString& line);
  // Binds a registered shortcut's key to the window that registered it.
  void bindHotkey(QObject* view, int number, const QString& key);
  // "sim", "none", or the name of a back end that connects somewhere.
  void setBackendName(const QString& name);

 private:
  QMdiArea* area_;
  QTabWidget* logTabs_;
  QPlainTextEdit* log_;
  QLabel* clock_;
  QLabel* backend_;
  QLabel* user_;
  // The clock and the user may change under a running session (`host` lines): read every tick.
  void showSession();
  std::vector<IVornDocTemplate*> templates_;
};
