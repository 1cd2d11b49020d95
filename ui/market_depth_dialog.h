// The Market Depth window: five bid levels of one issue, their total (TBQ), the time of the
// last change and the demand chart beside them, repainted as the exchange's updates arrive.
#pragma once

#include <QDialog>

#include "issues/market_depth.h"

class COFSControlBlock;
class DemandChart;
class QLabel;
class QTableWidget;

class MarketDepthDialog : public QDialog {
  Q_OBJECT

 public:
  MarketDepthDialog(COFSControlBlock& block, QWidget* parent = nullptr);
  ~MarketDepthDialog() override;

  void showIssue(const sOFSCol& issue);

 protected:
  void done(int result) override;

 private:
  void repaint();

  COFSControlBlock& block_;
  CMarketDepth depth_;
  QTableWidget* levels_;
  QLabel* total_;
  QLabel* lastUpdate_;
  DemandChart* chart_;
};
