#include "host/main_window.h"

#include <QDockWidget>
#include <QKeySequence>
#include <QMdiArea>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QShortcut>
#include <QStatusBar>
#include <QTabWidget>
#include <algorithm>

MainWindow::MainWindow() {
  setObjectName("VornTraderMainWindow");
  setWindowTitle("VornTrader - reference terminal");
  area_ = new QMdiArea(this);
  area_->setViewMode(QMdiArea::SubWindowView);
  setCentralWidget(area_);

  auto* dock = new QDockWidget("Log", this);
  dock->setObjectName("LogDock");
  logTabs_ = new QTabWidget(dock);
  log_ = new QPlainTextEdit(logTabs_);
  log_->setReadOnly(true);
  logTabs_->addTab(log_, "Messages");
  dock->setWidget(logTabs_);
  addDockWidget(Qt::BottomDockWidgetArea, dock);

  QMenu* window = menuBar()->addMenu("&Window");
  window->addAction("&Tile", area_, &QMdiArea::tileSubWindows);
  window->addAction("&Cascade", area_, &QMdiArea::cascadeSubWindows);
  window->addAction("&Quit", QKeySequence::Quit, this, &QWidget::close);
  statusBar()->showMessage("Ready");
  resize(1280, 800);
}

void MainWindow::AddDocTemplate(IVornDocTemplate* docTemplate) {
  if (std::find(templates_.begin(), templates_.end(), docTemplate) == templates_.end())
    templates_.push_back(docTemplate);
}

intptr_t MainWindow::SendMessage(uint32_t message, uintptr_t wparam, intptr_t lparam) {
  if (message == kWmCommand && lparam == kOpenDocumentParam) {
    auto* docTemplate = reinterpret_cast<IVornDocTemplate*>(wparam);
    if (docTemplate &&
        std::find(templates_.begin(), templates_.end(), docTemplate) != templates_.end()) {
      docTemplate->OpenDocument(area_);
      return 1;
    }
  }
  return 0;
}

void MainWindow::appendLog(const QString& line) {
  log_->appendPlainText(line);
}

void MainWindow::bindHotkey(QObject* view, int number, const QString& key) {
  // The host's key names: "Plus" is the keypad's plus.
  QKeySequence sequence(key);
  if (key == "Plus") sequence = QKeySequence(Qt::Key_Plus);
  if (key == "Delete") sequence = QKeySequence(Qt::Key_Delete);
  auto* shortcut = new QShortcut(sequence, this);
  shortcut->setContext(Qt::ApplicationShortcut);
  QObject::connect(shortcut, &QShortcut::activated, view, [view, number] {
    QMetaObject::invokeMethod(view, "onHostHotkey", Q_ARG(int, number));
  });
}
