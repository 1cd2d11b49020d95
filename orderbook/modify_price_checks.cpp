#include "orderbook/modify_price_checks.h"

#include <cmath>
#include <cstdint>

#include "domain/amount_rules.h"
#include "domain/client_rules.h"
#include "domain/number_text.h"
#include "domain/prices.h"
#include "domain/quantity_rules.h"

namespace {

using Verdict = PriceRevisionVerdict;
using Action = Verdict::Action;

// This window caps retail value at a fixed amount, not at the issue's retail limit.
constexpr double kRetailCap = 200000.0;
constexpr char kRetailCapText[] = "Amount cannot be greater than 200000 for Retail orders";

Verdict stop(std::string message, std::string focus = {}) {
  return {Action::Stop, std::move(message), std::move(focus), {}};
}

Verdict skip(std::string message) {
  return {Action::Skip, std::move(message), {}, {}};
}

// The client category of an order is the text of its issue id after the first "-".
std::string categoryOfIssueId(const std::string& issueId) {
  const size_t dash = issueId.find('-');
  return dash == std::string::npos ? std::string() : issueId.substr(dash + 1);
}

// A placed order carries its issue's tick in whole rupees; a reported one leaves it 0, and then
// the issue's own tick is used, rounded so that 0.29 rupees is 29 paise rather than 28.
int64_t tickPaiseOf(const sOFSOrderInfo& order, const sOFSCol& issue) {
  if (order.issueTickSize != 0) return static_cast<int64_t>(order.issueTickSize) * 100;
  return static_cast<int64_t>(std::llround(issue.tickSize * 100));
}

Verdict checkTypedPrice(const std::string& price, int64_t tickPaise) {
  if (price.empty()) return stop("Please enter Price", kModifyPriceLabel);
  if (price == "0" || price == "0.00" || price == "0.0") {
    return stop("Price cannot be zero", kModifyPriceLabel);
  }
  std::string message;
  if (price != "MKT" && !checkPriceTickPaise(price, message, tickPaise, 2)) return stop(message);
  return {};
}

// The retail cap, the NSE rule against lowering an unmargined institutional bid, and on BSE the
// bounds by the order's category text (field 12005, which the book fills from 63058).
Verdict checkValue(const sOFSOrderInfo& order, const sOFSCol& issue, const std::string& price,
                   const std::string& quantity) {
  const std::string category = categoryOfIssueId(order.issueId);
  const double value = leadingDouble(price) * leadingDouble(quantity);
  if (category == "RS" && value > kRetailCap) return skip(kRetailCapText);
  const Revision revision{order.exchange, category, order.margin, order.price,
                          order.quantity, price,    quantity};
  // With no quantity typed the order's own is used, so only a typed one can be "downwards".
  std::string message;
  if (!checkNseRevision(revision, message)) return skip(message);
  if (order.exchange != "bse_ipo") return {};
  if (order.field12005 == kNonInstitutionalOrder) {
    if (value < leadingDouble(issue.hniLimit)) {
      return skip("Value of Order Type Non-Institutional should exceed HNI Limit " +
                  issue.hniLimit);
    }
  } else if (value > kRetailCap) {
    return skip(kRetailCapText);
  }
  return {};
}

Verdict checkFloor(const std::string& price, const sOFSCol& issue) {
  const double floor = leadingDouble(issue.floorPrice);
  if (leadingDouble(price) < floor) {
    return stop("Price Should be more than Floor Price " + fixedText(floor, 4), kModifyPriceLabel);
  }
  return {};
}

Verdict checkTypedQuantity(const std::string& quantity, const sOFSCol& issue) {
  if (leadingInt64(quantity) == 0) return stop("Quantity cannot be zero", kModifyQuantityLabel);
  std::string message;
  if (!checkQuantityMinimum(quantity, issue, message) ||
      !checkQuantityLot(quantity, issue, message) ||
      !checkQuantityIssueSize(quantity, issue, message)) {
    return stop(message);
  }
  return {};
}

}  // namespace

PriceRevisionVerdict checkPriceRevision(const sOFSOrderInfo& order, const sOFSCol& issue,
                                        const std::string& price,
                                        const std::string& typedQuantity) {
  if (auto v = checkTypedPrice(price, tickPaiseOf(order, issue))) return v;
  const std::string& quantity = typedQuantity.empty() ? order.quantity : typedQuantity;
  if (auto v = checkValue(order, issue, price, quantity)) return v;
  if (auto v = checkFloor(price, issue)) return v;
  if (!typedQuantity.empty()) {
    if (auto v = checkTypedQuantity(typedQuantity, issue)) return v;
  }
  Verdict send;
  send.quantity = quantity;
  return send;
}
