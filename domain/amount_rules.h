// The amount limits of a bid by series group, and the NSE rule against lowering a bid.
#pragma once

#include <string>

// A bid's amount with the limits, as the texts the screen and the issue hold.
struct BidAmount {
  std::string series;
  std::string price;  // rupees, or "MKT" for a cut-off bid
  std::string quantity;
  std::string priceBandUpper;  // rupees; stands for the price of a cut-off bid
  std::string retailLimit;     // rupees; the most a retail-like bid may amount to
  std::string nonRetailLimit;  // rupees; the least a non-retail bid may amount to
};

// Price times quantity, truncated to a whole number of rupees.
double bidAmount(const std::string& price, const std::string& quantity,
                 const std::string& priceBandUpper);

// Retail-like series are capped by the retail limit, non-retail series bound below by theirs;
// other series pass. A limit's text is shown as the issue holds it.
bool checkBidAmount(const BidAmount& bid, std::string& message);

// A modification of a reported order, with the texts the order record and the screen hold.
struct Revision {
  std::string exchange;  // the order's wire key, "nse_ipo" or "bse_ipo"
  std::string series;
  std::string margin;         // as the order record holds it, "100% Margin" or "No Margin"
  std::string oldPricePaise;  // the order's price on the wire
  std::string oldQuantity;
  std::string newPrice;  // rupees, as typed
  std::string newQuantity;
};

// An NSE "IS" order carrying "No Margin" may be revised upwards only.
bool checkNseRevision(const Revision& revision, std::string& message);
