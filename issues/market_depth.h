// The Market Depth window of one issue: its five best bids, their total and the time of the
// last change, following the exchange's updates while it is open.
#pragma once

#include <array>
#include <string>

#include "domain/records.h"
#include "issues/demand_curve.h"
#include "issues/issues_port.h"

class CMarketDepth {
 public:
  explicit CMarketDepth(IssuesPort& port) : port_(port) {}
  ~CMarketDepth();

  // Shows the issue's depth and subscribes its price feed; the exchange fills it in.
  void open(const sOFSCol& issue);
  void close();
  bool isOpen() const;

  std::string title() const;
  struct Level {
    std::string price;  // rupees, two decimals
    std::string quantity;
    std::string bids;
  };
  std::array<Level, 5> levels() const;
  std::string totalBidQuantity() const;  // "TBQ"
  std::string lastUpdate() const;        // "NA" until the exchange says
  // The levels as the demand picture beside them: empty while the window is closed.
  DemandCurve demand() const;

 private:
  IssuesPort& port_;
  std::string symbol_;
  std::string exchange_;
  std::string floorPrice_;
  std::string indicativePrice_;
};
