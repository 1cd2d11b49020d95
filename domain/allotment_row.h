// One allotted bid as read from an exchange's allotment file. The texts are the line's own;
// once the line has passed its checks the two prices hold paise ("%lld").
#pragma once

#include <string>
#include <vector>

struct sOFSAllotmentRow {
  std::string symbol;                // the issue the allotment belongs to
  std::string orderNo;               // the exchange's order number
  std::string client;                // NSE layout: the client
  std::string ucc;                   // BSE layout: the client code (UCC)
  std::string bidQuantity;           // checked, carried with the line
  std::string bidPrice;              // rupees as read; paise once accepted
  std::string allottedQuantity;      // whole shares
  std::string allottedPrice;         // rupees as read; paise once accepted
  std::vector<std::string> columns;  // every column of the layout as read, the others included
  std::string exchange;              // stamped when accepted: "nse_ipo" or "bse_ipo"
};
