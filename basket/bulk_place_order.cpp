// A checked bid file line as the order the upload screen places, and the dispatch by kind.
#include "basket/bulk_bid_checks.h"
#include "basket/bulk_shared_checks.h"

using namespace std::string_literals;
using C = BidColumn;

namespace {

// The margin flag each kind's collateral column gives.
std::string marginOf(const BidLine& l) {
  const std::string_view margin = l[C::Margin];
  switch (l.kind()) {
    case BidFileKind::Neat:
      return margin == "01" ? "YES" : "NO";
    case BidFileKind::Now:
    case BidFileKind::NowModCxl:
      return margin == "NO" ? "NO" : "YES";
    case BidFileKind::Vt:
      break;
  }
  return margin == "No Margin" ? "NO" : "YES";
}

// An offline account without "-" is the member's own client, named with the TM code.
void setClientType(sOFSPlaceOrder& order, const std::string& tmCode) {
  order.clientType = bidClientType(order.proCli, order.clientId);
  if (order.clientType == "OFFLINE" && order.clientId.find('-') == std::string::npos) {
    order.clientId += "-" + tmCode;
  }
}

}  // namespace

std::string bidProCliWord(std::string_view proCli) {
  if (proCli == "F") return "PRO";
  if (proCli == "C") return "CLI";
  return std::string(proCli);
}

// "PRO"; any pro/cli but "CLI" is a walk-in; a client bid with an account is offline.
std::string bidClientType(std::string_view proCli, std::string_view clientId) {
  if (proCli == "PRO") return "PRO";
  if (proCli != "CLI" || clientId.empty()) return "WALKIN";
  return "OFFLINE";
}

std::string checkBidLine(const BidLine& line, const BidContext& context) {
  switch (line.kind()) {
    case BidFileKind::Neat:
      return checkNeatLine(line, context);
    case BidFileKind::Now:
      return checkNowLine(line, context);
    case BidFileKind::NowModCxl:
      return checkNowModCxlLine(line, context);
    case BidFileKind::Vt:
      break;
  }
  return checkVtLine(line, context);
}

sOFSPlaceOrder placeOrderOf(const BidLine& l, const BidContext& c) {
  sOFSPlaceOrder o;
  auto text = [&l](BidColumn column) { return std::string(l[column]); };
  o.side = "B"s;
  o.margin = marginOf(l);
  o.price = text(C::Price);
  o.marketFlag = o.price == bulk::kMarketPrice ? "Y"s : "N"s;
  o.priceType = o.price == bulk::kMarketPrice ? "MKT"s : "L"s;
  o.proCli = bidProCliWord(l[C::ProCli]);
  o.proCliText = text(C::ProCli);
  o.clientId = text(C::ClientId);
  o.accountNumber = o.clientId;
  o.pCode = text(C::PCode);
  o.quantity = text(C::Quantity);
  o.blockCollateral = text(C::Margin);
  o.walkinClientId = text(C::WalkinCode);
  o.walkinClientName = text(C::WalkinName);
  o.bookType = text(C::BookType);
  o.buySell = text(C::BuySell);
  o.orderNumber = text(C::NowOrderNumber);
  o.modCxlIndicator = text(C::ModCxl);
  o.orderType = text(C::OrderType);
  o.category = text(C::Category);
  o.cutOffBox = l.kind() == BidFileKind::Vt ? text(C::CutOff) : o.marketFlag;
  o.tmCode = c.tmCode;
  if (l.kind() == BidFileKind::Vt) {
    o.exchange = text(C::Exchange);
    o.issueId = text(C::IssueId);
    if (const sOFSCol* issue = c.issueById ? c.issueById(o.issueId) : nullptr) {
      o.symbol = issue->symbol;
    }
  } else {
    o.series = text(C::Series);
    o.symbol = text(C::Symbol) + "-" + o.series;
    if (const sOFSCol* issue = bulk::issueOfLine(l, c)) o.issueId = issue->issueId;
  }
  o.screenName = o.exchange == "BSEIPO" ? "bse_ipo" : "nse_ipo";
  setClientType(o, c.tmCode);
  return o;
}
