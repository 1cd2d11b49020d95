#include "domain/client_rules.h"
#include "domain/exchange_names.h"
#include "domain/issue_terms.h"
#include "domain/number_text.h"
#include "domain/prices.h"
#include "domain/series.h"
#include "orderentry/order_entry_steps.h"

// One-letter flags are assigned as strings: gcc 12 at -O3 misreads a literal assignment as an
// overlapping copy (-Wrestrict).
using namespace std::string_literals;

namespace {

using namespace entry_label;

bool isZeroPrice(const std::string& price) {
  return price == "0" || price == "0.00" || price == "0.0";
}

// "MKT", or a zero price with the cut-off box ticked.
bool isCutOffBid(const OrderEntryFields& f) {
  return f.price.text == "MKT" || (isZeroPrice(f.price.text) && f.cutOff);
}

// Quantity and price as typed, against the issue.
Verdict checkBidEntry(const OrderEntryFields& f, const sOFSCol& issue) {
  const std::string& quantity = f.quantity.text;
  const std::string& price = f.price.text;
  if (quantity.empty()) return refusal("Please enter Quantity", kQuantity);
  if (issue.issueId.empty()) return refusal("IssueID not found");
  if (price.empty()) return refusal("Please enter Price", kPrice);
  if (isZeroPrice(price) && !f.cutOff) return refusal("Price cant be zero", kPrice);
  std::string message;
  if (price != "MKT" && !checkPriceTickPaise(price, message, tickPaiseOf(issue), 2)) {
    return refusal(message);
  }
  if (auto v = checkMinimumQuantity(quantity, issue)) return v;
  if (auto v = checkLot(quantity, issue)) return v;
  return checkIssueSize(quantity, issue);
}

// Who bids: the account or the walk-in codes, margin, side, client type, exchange and user.
Verdict fillBidClient(const OrderEntryFields& f, const SubmitContext& c, sOFSPlaceOrder& bid) {
  const std::string& type = f.clientType.selected;
  std::string message;
  if (type == kWalkinClient) {
    bid.walkinClientId = f.walkinClientCode.text;
    bid.pCode = f.walkinParticipantCode.text;
    // Both codes at once: no step between here and their own can refuse a walk-in bid.
    if (!checkWalkinCodes(bid.walkinClientId, bid.pCode, message)) return refusal(message);
  } else {
    const std::string& code = f.clientCode.text;
    const bool known = !code.empty() && c.isKnownClient(code);
    if (type != kProClient && !checkOrdinaryAccount(code, known, message)) {
      return refusal(message, kClientCode);
    }
    bid.clientId = code;
    bid.pCode = f.participantCode.selected;
  }
  bid.symbol = f.ofsId.text;
  bid.issueId = c.issue.issueId;
  bid.marginText = f.margin.selected;
  bid.margin = marginFlag(f.margin.selected);
  if (!checkProMargin(type, f.margin.selected, message)) return refusal(message);
  bid.side = "B"s;
  bid.clientType = type;
  bid.proCli = clientTypeCode(type);
  bid.exchange = f.exchange.text;
  bid.screenName = exchangeKey(f.exchange.text);
  bid.userId = c.userId;
  return {};
}

// The bid's price against the band and the amount limits, and what the record carries of it.
Verdict fillBidPrice(const OrderEntryFields& f, const sOFSCol& issue, sOFSPlaceOrder& bid) {
  const std::string& quantity = f.quantity.text;
  const std::string& price = f.price.text;
  const bool cutOff = isCutOffBid(f);
  const std::string series = seriesOfSymbol(f.ofsId.text);
  // Already refused at the top; kept as the record's own guard.
  if (quantity.empty()) return refusal("Please enter some quantity");
  const PriceBand band = splitPriceRange(f.priceRange);
  bid.floorPrice = band.floor;
  bid.ceilingPrice = band.ceiling;
  bid.priceRange = f.priceRange;
  if (auto v = checkCeiling(price, band.ceiling)) return v;
  if (auto v = checkAmount(series, price, cutOff, quantity, band.ceiling, issue)) return v;
  std::string message;
  if (!checkPCodeOrderType(bid.pCode, f.orderType.selected, message)) return refusal(message);
  if (auto v = checkNineDigits(quantity)) return v;
  if (!cutOff) {
    // Already refused at the top; kept as the record's own guard.
    if (price.empty()) return refusal("Please enter price");
    if (leadingDouble(price) < leadingDouble(band.floor)) {
      return refusal(
          "Price Should be more than Floor Price " + fixedText(leadingDouble(band.floor), 4),
          kPrice);
    }
  }
  bid.priceType = cutOff ? "MKT"s : "L"s;
  bid.price = cutOff ? band.ceiling : price;
  bid.marketFlag = cutOff ? "Y"s : ""s;
  return {};
}

}  // namespace

Verdict checkNewBid(const OrderEntryFields& fields, const SubmitContext& context,
                    sOFSPlaceOrder& bid) {
  if (auto v = checkOpenForBids(fields, context)) return v;
  if (auto v = checkBidEntry(fields, context.issue)) return v;
  if (auto v = fillBidClient(fields, context, bid)) return v;
  if (auto v = fillBidPrice(fields, context.issue, bid)) return v;
  bid.quantity = fields.quantity.text;
  bid.series = seriesOfSymbol(fields.ofsId.text);
  bid.orderType = fields.orderType.selected;
  bid.category = fields.clientCategory.selected;
  bid.cutOffBox = fields.cutOff ? "Y"s : "N"s;
  // The screen's "Y"/"N" goes to a field of its own: as the market flag every walk-in bid would
  // go out at market price.
  bid.cutOffText = fields.cutOffFlag;
  return {};
}
