// The three records the dispatcher fills from answers: an issue, an order as reported, and the
// underlying's last traded price. Every member is the answer's text as delivered, except the
// numeric copies named as such. Members known only by their answer field are named fieldNNNNN.
#pragma once

#include <array>
#include <cstdint>
#include <string>

// The underlying's market data; one per cash-market instrument ("nse_cm|SYM", "bse_cm|SYM").
struct sAssetInfo {
  int32_t ltp = 0;       // in units of 1/divisor rupee
  int32_t decimals = 2;  // 2 when the answer does not say
  double divisor = 100.0;
  bool shown = false;  // the watch view has been told of this asset
};

// An OFS issue; one per issue symbol (field 10100).
struct sOFSCol {
  std::string issueId;           // 63032, "OFS ID"
  std::string exchange;          // 63001, "nse_ipo" or "bse_ipo"
  std::string field3;            // the symbol name ("Symbol Name"), shown as "Symbol"
  std::string category;          // 10610, key into the categories map; shown as "Series"
  std::string field13041;        // ISIN
  std::string floorPrice;        // 63022, rupees
  std::string field54079;        // "RMS Price"
  std::string field49165;        // "Open Date"
  std::string field79;           // "Close Date"
  std::string field107;          // final modification date
  std::string minQuantityText;   // 55
  std::string issueSizeText;     // 10062
  std::string lotSizeText;       // 10027, shown as "Lot Size"
  std::string field54009;        // retail limit, rupees
  std::string hniLimit;          // 64211, the non-retail individual limit, rupees
  std::string field67;           // order closing time, "HH:MM:SS"
  std::string field12019;        // OFS discount
  std::string field12020;        // discount kind: "V" value, "P" percentage
  std::string tickSizeText;      // 63005, rupees
  std::string field13004;        // face value, rupees
  std::string field10046;        // prospectus URL
  std::string field63059;        // "CutOff": "Y" when cut-off bids are taken
  std::string symbol;            // 10100, the issues map key
  std::string field49033;        // "Company Name"
  std::string field61002;        // issue notes
  std::string assetSymbol;       // 54730, the underlying's symbol in the cash market
  std::string field63023;        // "Ceiling Price"
  std::string field54803;        // "Indicative Price"
  std::string biddingFlag;       // 54571, "N": closed to bidding (order placement "N")
  std::string modifyCancelFlag;  // 61362, "N": orders may not be modified or cancelled
  std::string field63017;        // symbol display, "Y" or "N"

  // Numeric copies of the text above.
  int64_t minQuantity = 0;
  double issueSize = 0.0;
  int64_t lotSize = 0;
  double tickSize = 0.0;

  sAssetInfo* asset = nullptr;  // owned by the assets map
};

// What "get_company_ofs_issue" says of an issue; one per issue id (field 63032).
struct sOFSIssueSummary {
  std::string issueId;      // 63032
  int32_t tickSize = 0;     // 63005
  int32_t minQuantity = 0;  // 55, occurrence 1
  std::string lotSize;      // 10027
  std::string exchange;     // 63001
  std::string field63059;
};

// An order as reported; one per OFS order number (field 64001). History rows and filter
// results are records of the same type.
struct sOFSOrderInfo {
  std::string priceType;   // 12008, "MKT" or "L"
  std::string exchange;    // 63001
  std::string field12005;  // 12005, then 63058 over it
  std::string field64821;
  std::string field64926;
  std::string field50110;
  std::string ofsOrderNo;  // 64001, the key
  std::string field64820;
  std::string status;           // 64655 (10303 in a history row)
  std::string price;            // 10306 in paise, or "MKT"
  std::string rejectionReason;  // 20008
  std::string issueId;          // 63100
  std::string clientId;         // 54001
  std::string quantity;         // 12004
  std::string field12003;
  std::string field54002;
  std::string field31003;      // user id
  std::string margin;          // 64170 as "100% Margin" / "No Margin"
  std::string cfStatus;        // 10355, carry-forward status
  std::string walkinClientId;  // 64916
  std::string symbol;          // 10100, the issues map key
  std::string field64658;
  std::string field10309;
  std::string field49238;  // exchange order number
  std::string field40001;
  std::string field40002;
  std::string pCode;       // 10332, or 13034 for "bse_ipo"
  std::string guiOrderNo;  // 54158
  std::string proCliFlag;  // 54056, "C" or "F"
  std::string field63225;
  std::string field55;
  std::string field10027;
  std::string field63022;
  std::string field63023;
  std::string field10308;
  std::string field10307;

  // History row only.
  std::string field64750;
  std::string timeText;      // 50100 formatted; empty for a time below 1
  int32_t timeFraction = 0;  // 50101

  // Placed orders only: copied from the issue summary.
  int32_t issueTickSize = 0;
  int32_t issueMinQuantity = 0;
  int32_t issueLotSize = 0;

  // Kept by the order book's lists (open, closed): where each holds this order, so that a live
  // update finds the order's line without a search. Valid only for the list's generation.
  struct BookLine {
    uint32_t slot = UINT32_MAX;
    uint32_t generation = 0;
  };
  std::array<BookLine, 2> bookLine{};
};
