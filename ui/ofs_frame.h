// The plug-in's document frame inside the host's document area; it holds the watch view.
#pragma once

#include <QMainWindow>

class COFSControlBlock;
class OrderBookWidget;
class QDockWidget;
class QMdiSubWindow;
class WatchViewWidget;

class COFSFrame : public QMainWindow {
  Q_OBJECT

 public:
  COFSFrame(COFSControlBlock& block, QWidget* parent = nullptr);

  WatchViewWidget* watchView() const { return watchView_; }
  OrderBookWidget* orderBook() const { return orderBookWidget_; }
  // Shows the docked order book and brings it forward.
  void showOrderBook();
  // Shows the frame in its sub-window of the host's document area: filling the area the first
  // time, afterwards where the user left it, with the docked panes as they were.
  void showIn(QMdiSubWindow* window);
  // Stores the docking layout and the sub-window's place under the plug-in's organisation and
  // application.
  void saveLayout() const;

 private:
  WatchViewWidget* watchView_;
  QDockWidget* orderBook_;
  OrderBookWidget* orderBookWidget_;
};
