// The order to place: what order entry, a basket row and a bulk upload row fill and the order
// requests send. Every member is text.
#pragma once

#include <string>
#include <unordered_map>

struct sOFSPlaceOrder {
  // Read by the order requests, in this order.
  std::string category;  // client category; empty is sent as "Institutional"
  std::string issueId;
  std::string pCode;  // participant code; for a walk-in bid the typed one
  std::string clientId;
  std::string price;  // rupees
  std::string quantity;
  std::string side;        // empty is sent as no side at all, and becomes "B"
  std::string proCli;      // "PRO"/"CLI" (written back as "F"/"C"), or the letter itself
  std::string margin;      // "YES"/"NO"
  std::string marketFlag;  // non-empty for a cut-off (market-priced) walk-in bid
  std::string priceType;   // "L" or "MKT"
  std::string screenName;  // "NSEIPO", "BSEIPO" or an exchange key
  std::string walkinClientId;
  std::string bsePCode;
  std::string reference;  // key of the placed-orders map

  // The screens' working values.
  std::string symbol;  // symbol-series
  std::string series;
  std::string orderType;   // "Retail", "Non-institutional", "Institutional"
  std::string clientType;  // the Pro/Cli choice: "PRO", "CLI", "Walkin"; bulk "OFFLINE"/"WALKIN"
  std::string marginText;  // "100% Margin" or "No Margin"
  std::string userId;
  std::string exchange;  // the exchange as the screen shows it
  std::string floorPrice;
  std::string ceilingPrice;
  std::string priceRange;  // floor "-" ceiling
  std::string cutOffText;  // the issue's cut-off allowance, "Y" or "N"
  std::string cutOffBox;   // the cut-off tick box, "Y" or "N"
  std::string indicativePrice;
  std::string closingTime;
  std::string minQuantity;
  std::string lotSize;
  std::string issueSize;
  std::string tickSize;
  std::string companyName;
  std::string openDate;
  std::string closeDate;
  std::string orderNumber;  // the OFS order a modify or cancel row names
  std::string modCxlIndicator;
  std::string bookType;
  std::string buySell;
  std::string accountNumber;
  std::string clientSearch;
  std::string clientName;
  std::string walkinClientName;
  std::string proCliText;       // the bid file's own Pro/Cli column
  std::string blockCollateral;  // the bid file's own margin column
  std::string tmCode;
  std::string lineNumber;
  std::string placeStatus;
  std::string placeMessage;
  std::string ticked;  // the basket list's tick box, "Y" or "N"
};

// Orders placed from the screens, by `reference`.
using PlacedOrderMap = std::unordered_map<std::string, sOFSPlaceOrder>;

// The process-wide placed-orders map.
PlacedOrderMap& placedOrderRecords();
