// The plug-in's document frame inside the host's document area; it holds the watch view.
#pragma once

#include <QMainWindow>

class COFSControlBlock;
class OrderBookWidget;
class QDockWidget;
class WatchViewWidget;

class COFSFrame : public QMainWindow {
  Q_OBJECT

 public:
  COFSFrame(COFSControlBlock& block, QWidget* parent = nullptr);

  WatchViewWidget* watchView() const { return watchView_; }
  OrderBookWidget* orderBook() const { return orderBookWidget_; }
  // Shows the docked order book and brings it forward.
  void showOrderBook();
  // Stores the docking layout under the plug-in's organisation and application.
  void saveLayout() const;

 private:
  WatchViewWidget* watchView_;
  QDockWidget* orderBook_;
  OrderBookWidget* orderBookWidget_;
};
