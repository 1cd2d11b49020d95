// What the simulated exchange knows: issues, accounts, client categories, cash-market prices,
// peer data and orders.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace sim {

// Field ids of an issue that the exchange itself reads.
namespace issue_field {
constexpr uint32_t kId = 63032;
constexpr uint32_t kExchange = 63001;
constexpr uint32_t kCode = 3;
constexpr uint32_t kSeries = 10610;
constexpr uint32_t kFloor = 63022;
constexpr uint32_t kOpen = 49165;
constexpr uint32_t kClose = 79;
constexpr uint32_t kMinQuantity = 55;
constexpr uint32_t kLot = 10027;
constexpr uint32_t kTick = 63005;
constexpr uint32_t kCutOff = 63059;
constexpr uint32_t kSymbol = 10100;
constexpr uint32_t kCompany = 49033;
constexpr uint32_t kAsset = 54730;
constexpr uint32_t kBidding = 54571;
constexpr uint32_t kModifyCancel = 61362;
}  // namespace issue_field

// An issue as its list row carries it: field id to text. The open and close dates may be
// relative ("+3"), resolved against today whenever the issue is read.
struct Issue {
  std::map<uint32_t, std::string> fields;

  std::string get(uint32_t id) const;
  std::string id() const { return get(issue_field::kId); }
  std::string exchange() const { return get(issue_field::kExchange); }
  std::string symbol() const { return get(issue_field::kSymbol); }
};

struct Account {
  std::string id;
  std::string pCode;
  std::string custodian;  // the BSE participant (custodian) code
  std::string name;
};

struct CategoryRow {
  std::string series;  // 10610
  std::string value;   // 13034
};

// A cash-market instrument: last traded price in units of 1/10^decimals rupee.
struct Asset {
  std::string exchange;  // "nse_cm" or "bse_cm"
  std::string symbol;
  int64_t ltp = 0;
  int decimals = 2;
};

// One state an order went through, for its history.
struct OrderEvent {
  std::string status;  // "open pending", "open", "modified", "cancelled", "rejected", ...
  std::string price;
  std::string quantity;
  std::string reason;
  int64_t time = 0;
  int32_t fraction = 0;  // milliseconds past `time`
};

struct Order {
  std::string number;  // 64001
  std::string exchange;
  std::string user;
  std::string account;  // 54001, empty for a walk-in order
  std::string walkin;   // 64916
  std::string issueId;
  std::string symbol;
  std::string quantity;
  std::string priceType;  // "L" or "MKT"
  std::string price;      // paise, or "MKT"
  std::string side = "B";
  std::string proCli = "C";
  std::string margin;
  std::string pCode;
  std::string bsePCode;
  std::string category;
  std::string guiNumber;       // 54158, as the request gave it
  std::string exchangeNumber;  // 49238
  std::string status;
  std::string reason;  // 20008
  // What the allotment gave: 10308 shares at 10307 paise; empty until allotted.
  std::string allottedQuantity;
  std::string allottedPrice;
  std::string cfStatus = "Active";
  int64_t updated = 0;
  std::vector<OrderEvent> history;

  bool isWalkin() const { return !walkin.empty(); }
  bool isOpen() const { return status == "open" || status == "open pending"; }
};

struct ExchangeData {
  std::vector<Issue> issues;
  std::vector<Account> accounts;
  std::vector<CategoryRow> categories;
  std::vector<Asset> assets;
  std::map<std::string, std::string> peerData;  // user id -> 28561
  std::vector<Order> orders;
  // State changes so far: the n-th is stamped n milliseconds (modulo a second) past its
  // second, so events of one second keep their order and a replayed script its transcript.
  int64_t stateChanges = 0;
};

}  // namespace sim
