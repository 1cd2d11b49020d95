// The watch view's details of its selected issue: the facts a dealer reads while bidding and the
// demand its price feed reports. Following the feed is the user's choice (followBids): a feed
// for every row the cursor passes over would load the exchange for nothing.
#pragma once

#include <string>
#include <vector>

#include "domain/records.h"
#include "issues/demand_curve.h"
#include "issues/issues_port.h"

class CSelectedIssue {
 public:
  explicit CSelectedIssue(IssuesPort& port) : port_(port) {}

  // Null: nothing is selected.
  void show(const sOFSCol* issue) { issue_ = issue; }
  const sOFSCol* issue() const { return issue_; }

  // "ABC Industries Ltd - ABC-RS (NSEIPO)"; "No issue selected" without one.
  std::string heading() const;
  struct Fact {
    std::string label;
    std::string value;
  };
  // Labelled as the watch list's columns, with the same texts; then the feed's TBQ and time.
  std::vector<Fact> facts() const;

  // Whether the issue's price feed is subscribed, so that its bids are known.
  bool followsBids() const;
  void followBids();
  // Whether `depth` is the feed of the issue shown.
  bool isDepthOf(const MarketDepthState& depth) const;
  DemandCurve demand() const;

 private:
  const MarketDepthState* depth() const;

  IssuesPort& port_;
  const sOFSCol* issue_ = nullptr;
};
