#include "host/main_window.h"

#include <QDateTime>
#include <QDockWidget>
#include <QKeySequence>
#include <QLabel>
#include <QMdiArea>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QShortcut>
#include <QStatusBar>
#include <QTabWidget>
#include <QTimer>
#include <algorithm>
#include <ctime>

#include "host/host_state.h"

MainWindow::MainWindow() {
  setObjectName("VornTraderMainWindow");
  setWindowTitle("Reference terminal");
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
  user_ = new QLabel(this);
  backend_ = new QLabel(this);
  clock_ = new QLabel(this);
  for (QLabel* part : {user_, backend_, clock_}) {
    part->setContentsMargins(8, 0, 8, 0);
    statusBar()->addPermanentWidget(part);
  }
  setBackendName("none");
  auto* tick = new QTimer(this);
  connect(tick, &QTimer::timeout, this, &MainWindow::showSession);
  tick->start(1000);
  showSession();
  resize(1280, 800);
}

void MainWindow::setBackendName(const QString& name) {
  if (name == "sim") {
    backend_->setText("Back end: simulated exchange");
  } else if (name == "none") {
    backend_->setText("Back end: none (scripted answers)");
  } else {
    backend_->setText("Back end: connected to " + name);
  }
}

void MainWindow::showSession() {
  std::optional<int64_t> fixed;
  QString user;
  uint32_t kind = 0;
  {
    std::lock_guard lock(hostState().mutex);
    fixed = hostState().clock;
    user = QString::fromStdString(hostState().user);
    kind = hostState().loginKind;
  }
  // The time the plug-in reads: a fixed `host time` stands still, the real clock ticks.
  const qint64 seconds = fixed ? *fixed : static_cast<qint64>(std::time(nullptr));
  clock_->setText(QDateTime::fromSecsSinceEpoch(seconds).toString("dd/MM/yyyy HH:mm:ss") +
                  (fixed ? " (host time, fixed)" : ""));
  user_->setText("User: " + user + "   Login kind: " + QString::number(kind));
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
