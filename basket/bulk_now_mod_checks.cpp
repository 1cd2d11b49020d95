// The NOW modify/cancel line checks: the line names one of the user's open orders and must agree
// with it, then passes the NOW bid file's own tests. "Invald" is intended and must stay.
#include "basket/bulk_bid_checks.h"
#include "basket/bulk_shared_checks.h"
#include "domain/code_alphabet.h"
#include "domain/number_text.h"
#include "domain/prices.h"

using namespace bulk;
using C = BidColumn;

namespace {

constexpr char kYes[] = "YES";

// The order's price as the grid shows it, with two decimals; "MKT" as it stands.
std::string shownPrice(std::string_view price) {
  if (price == kMarketPrice) return kMarketPrice;
  return fixedText(leadingDouble(price), 2);
}

std::string checkAgainstOrder(const BidLine& l, const sOFSOrderInfo& order) {
  if (order.status != "open") return "Only Open Orders can be Modified or Cancelled";
  std::string symbol(l[C::Symbol]);
  symbol.append("-").append(l[C::Series]);
  if (symbol != order.symbol) return "Invalid Symbol";
  return {};
}

std::string checkCancellation(const BidLine& l, const sOFSOrderInfo* order) {
  if (!order || l[C::ModCxl] != "C") return {};
  if (l[C::Quantity] != order->quantity) return "Invalid Quantity for Cancellation";
  if (shownPrice(l[C::Price]) != paiseToRupeesText(order->price)) {
    return "Invalid Price for Cancellation";
  }
  return {};
}

std::string checkCodes(const BidLine& l, const sOFSOrderInfo* order) {
  const std::string_view client = l[C::ClientId], pCode = l[C::PCode];
  const bool walkin = l[C::NowClientType] == "WALKIN";
  if (client.size() > 10) return "Client ID length cannot be more than 10";
  if (!isUpperCase(client)) return "Client ID should be in Uppercase";
  if (!inCodeAlphabet(client)) return "Client id cannot have Special Characters.";
  // A walk-in order is reported under its walk-in code, so only other kinds compare the id.
  if (order && !walkin && client != order->clientId) return "Invalid Client ID";
  if (pCode.size() > 12) return "Participant Code length cannot be more than 12";
  if (!isUpperCase(pCode)) return "CP code should be in Uppercase";
  if (!inCodeAlphabet(pCode)) return "Participant code cannot have Special Characters";
  if (order && pCode != order->pCode) return "Invalid Participant code";
  return {};
}

std::string checkByClientType(const BidLine& l, const BidContext& c) {
  const std::string_view type = l[C::NowClientType], code = l[C::WalkinCode];
  const bool collateralMismatch = !l[C::PCode].empty() && l[C::Margin] == kYes;
  if (type == "PRO") {
    if (l[C::PCode] != l[C::ClientId]) return "Participant Code and Client ID mismatched";
    if (l[C::Margin] == kYes) return "Invalid Block Collateral value for category";
    if (!code.empty()) return "Invald Walkin Client code for Client type";
    return {};
  }
  if (type == "OFFLINE") {
    if (!code.empty()) return "Invald Walkin Client code for Client type";
    if (l[C::ClientId].empty()) return "Invalid Account ID";
    if (collateralMismatch) return "Participant Code and Block Collateral mismatched";
    return {};
  }
  if (l[C::ClientId] != "WALKIN") return "Invalid Account ID for Client Type";
  if (!isUpperCase(code)) return "Walkin Client code should be in Uppercase";
  if (code.size() > 10) return "Walkin Client code length cannot be more than 10";
  if (code.empty()) return "Invalid Walkin Client code for WALK IN client";
  if (!inCodeAlphabet(code)) return "Walkin Client code cannot have Special Characters";
  if (code == c.tmCode) return "Walkin Client code should not be TM code";
  if (collateralMismatch) return "Participant Code and Block Collateral mismatched";
  return {};
}

}  // namespace

std::string checkNowModCxlLine(const BidLine& l, const BidContext& c) {
  const std::string_view number = l[C::NowOrderNumber], symbol = l[C::Symbol];
  const std::string_view series = l[C::Series], type = l[C::NowClientType];
  const std::string_view proCli = l[C::ProCli], margin = l[C::Margin], price = l[C::Price];
  const std::string_view quantity = l[C::Quantity];
  const bool retail = series == "RS";
  if (isEmptyOrBlanks(number)) return "NOW Order Number Is not Mentioned";
  const sOFSOrderInfo* order = c.orderOf ? c.orderOf(number) : nullptr;
  if (c.orderOf && !order) return "Invalid order Number";
  if (isBlankOrSpace(symbol) || isBlankOrSpace(series)) return "Symbol Or Series Is not Mentioned";
  if (!isUpperCase(symbol)) return "Symbol should be in Uppercase";
  if (series != "IS" && !retail) return "Series mentioned is incorrect";
  if (order) {
    if (auto m = checkAgainstOrder(l, *order); !m.empty()) return m;
  }
  if (type != "WALKIN" && type != "OFFLINE" && type != "PRO") return "Invalid Client Type";
  if (l[C::ModCxl] != "M" && l[C::ModCxl] != "C") {
    return "Indicator should be either M(Modify) or C(Cancel)";
  }
  if (isEmptyOrBlanks(quantity)) return "Quantity cannot be blank";
  if (quantity == "0" || !isDigits(quantity)) return "Invalid Quantity";
  if (isEmptyOrBlanks(price)) return "Price cannot be blank";
  if (price == "0") return kInvalidPrice;
  if (price != kMarketPrice) {
    if (auto m = checkBidPrice(price, issueOfLine(l, c)); !m.empty()) return m;
  }
  if (auto m = checkCancellation(l, order); !m.empty()) return m;
  if (proCli.empty()) return "Category Not Mentioned";
  if ((proCli != "PRO" && proCli != "CLI") || (type == "PRO") != (proCli == "PRO")) {
    return "Invalid Client Type and Category";
  }
  if (auto m = checkCodes(l, order); !m.empty()) return m;
  if (margin != kYes && margin != "NO") return "Invalid Block Collateral";
  if (series == "IS" && price == kMarketPrice) return "Incorrect Cutoff Combination";
  if (retail && l[C::PCode] != c.tmCode) return "Invalid Participant Code for Series";
  if (retail && margin != kYes) return "Invalid Block Collateral for Series";
  return checkByClientType(l, c);
}
