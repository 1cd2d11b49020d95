// The Market Depth window: five bid levels of one issue, their total (TBQ) and the time of the
// last change, repainted as the exchange's updates arrive.
#pragma once

#include <QDialog>

#include "issues/market_depth.h"

class COFSControlBlock;
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
};
