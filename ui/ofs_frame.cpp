#include "ui/ofs_frame.h"

#include <QDockWidget>
#include <QMdiSubWindow>
#include <QSettings>

#include "plugin/settings_paths.h"
#include "ui/order_book_widget.h"
#include "ui/watch_view_widget.h"

COFSFrame::COFSFrame(COFSControlBlock& block, QWidget* parent) : QMainWindow(parent) {
  setObjectName("COFSFrame");
  setWindowTitle("OFS");
  watchView_ = new WatchViewWidget(block, this);
  setCentralWidget(watchView_);
  orderBook_ = new QDockWidget("Order Book", this);
  orderBook_->setObjectName("OrderBookDock");
  orderBookWidget_ = new OrderBookWidget(block, *watchView_, orderBook_);
  orderBook_->setWidget(orderBookWidget_);
  addDockWidget(Qt::BottomDockWidgetArea, orderBook_);
  orderBook_->hide();
}

void COFSFrame::showOrderBook() {
  orderBook_->show();
  orderBook_->raise();
}

void COFSFrame::showIn(QMdiSubWindow* window) {
  const QSettings settings(kLayoutOrganisation, kLayoutApplication);
  restoreState(settings.value("FrameLayout").toByteArray());
  const QRect place = settings.value("FrameWindow").toRect();
  if (!place.isValid() || settings.value("FrameMaximised", true).toBool()) {
    window->showMaximized();
    return;
  }
  window->setGeometry(place);
  window->show();
}

void COFSFrame::saveLayout() const {
  QSettings settings(kLayoutOrganisation, kLayoutApplication);
  settings.setValue("FrameLayout", saveState());
  if (auto* window = qobject_cast<const QMdiSubWindow*>(parentWidget())) {
    settings.setValue("FrameMaximised", window->isMaximized());
    settings.setValue("FrameWindow", window->geometry());
  }
}
