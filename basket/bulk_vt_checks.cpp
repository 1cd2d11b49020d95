// The terminal's own bid file ("VT Format"): the line's fields, the client rules, then the issue
// it names by id. "InValid" and "Cient" are intended and must stay.
#include "basket/bulk_bid_checks.h"
#include "basket/bulk_shared_checks.h"
#include "domain/amount_rules.h"
#include "domain/client_rules.h"
#include "domain/code_alphabet.h"
#include "domain/issue_terms.h"
#include "domain/number_text.h"
#include "domain/quantity_rules.h"

using namespace bulk;
using C = BidColumn;

namespace {

constexpr char kEmployee[] = "Employee";

bool isVtOrderType(std::string_view type) {
  return type == kRetailOrder || type == kNonInstitutionalOrder || type == kInstitutionalOrder ||
         type == kEmployee;
}

// A participant code of code characters, and the account's own when the account is known.
bool isValidPCode(std::string_view pCode, const std::string* accountPCode) {
  return inCodeAlphabet(pCode) && (!accountPCode || *accountPCode == pCode);
}

std::string checkClientRules(const BidLine& l) {
  const VtClientBid bid{l[C::Exchange],  l[C::ClientId],      l[C::PCode],   l[C::Margin],
                        l[C::OrderType], l[C::CutOff] == "Y", l[C::Category]};
  std::string message;
  checkVtClientRules(bid, message);
  return message;
}

// "%s" is the order type.
std::string forType(const char* text, std::string_view type) {
  return std::string(text).append(type);
}

std::string checkCutOff(const BidLine& l, const std::string& series) {
  const std::string_view type = l[C::OrderType];
  const bool market = l[C::Price] == kMarketPrice, cutOff = l[C::CutOff] == "Y";
  if (series == "Employee" || series == "ES") {
    if (!market) return forType("Price should be MKT for ", type);
    if (!cutOff) return forType("Cut off should be Y for ", type);
  }
  if (series == "NonRetail" || series == "IS") {
    if (market) return forType("Price should not be MKT for ", type);
    if (cutOff) return forType("Cut off should not be Y for ", type);
  }
  if (cutOff && !market) return "Price should be MKT When Cutoff is Y";
  if (!cutOff && market) return "Price should not be MKT When Cutoff is N";
  return {};
}

std::string checkAgainstVtIssue(const BidLine& l, const sOFSCol& issue, const std::string& series) {
  const std::string quantity(l[C::Quantity]), price(l[C::Price]);
  const double ceiling = leadingDouble(ceilingPriceOf(issue));
  std::string message;
  if (l[C::CutOff] == "Y" && cutOffAllowanceOf(issue) != "Y") {
    return "Cut off cannot be Y Since Cut off is not enabled for this Issue";
  }
  if (!checkQuantityMinimum(quantity, issue, message) ||
      !checkQuantityLot(quantity, issue, message, IssueNoun::Security, QuantityWord::Quantity) ||
      !checkQuantityIssueSize(quantity, issue, message, IssueNoun::Security,
                              QuantityWord::Quantity)) {
    return message;
  }
  if (price != kMarketPrice && ceiling > 0 && leadingDouble(price) > ceiling) {
    return "Price is beyond the Ceiling Price";
  }
  const BidAmount amount{series,
                         price,
                         quantity,
                         ceilingPriceOf(issue),
                         retailLimitOf(issue),
                         nonRetailLimitOf(issue)};
  checkBidAmount(amount, message);
  return message;
}

}  // namespace

std::string checkVtLine(const BidLine& l, const BidContext& c) {
  const std::string_view exchange = l[C::Exchange], proCli = l[C::ProCli], client = l[C::ClientId];
  const std::string_view type = l[C::OrderType], quantity = l[C::Quantity], price = l[C::Price];
  const std::string_view margin = l[C::Margin], cutOff = l[C::CutOff];
  if (exchange != "NSEIPO" && exchange != "BSEIPO") return "InValid Exchange";
  if (proCli != "C" && proCli != "F") return "InValid Pro/Cli";
  const std::string* accountPCode = c.participantCodeOf ? c.participantCodeOf(client) : nullptr;
  if (client.empty() || (c.participantCodeOf && !accountPCode)) return "InValid Cient ID";
  if (!isValidPCode(l[C::PCode], accountPCode)) return "InValid Pcode";
  if (margin != kFullMargin && margin != kNoMargin) return "InValid Margin";
  if (cutOff != "Y" && cutOff != "N") return "InValid Cut off";
  if (type.empty()) return "Order type cannot be Blank";
  if (!isVtOrderType(type)) return "InValid order type";
  if (auto m = checkClientRules(l); !m.empty()) return m;
  const sOFSCol* issue = c.issueById ? c.issueById(l[C::IssueId]) : nullptr;
  if (c.issueById && !issue) return "Issue Id not found";
  if (!c.listIssueId.empty() && l[C::IssueId] != c.listIssueId) return "Issue Id is Different";
  if (quantity.empty()) return "Quantity cannot be blank";
  if (isDigits(quantity) && leadingInt64(quantity) == 0) return "Quantity cannot be zero";
  if (!isDigits(quantity)) return "Invalid Quantity";
  if (price.empty()) return "Price cannot be blank";
  if (price != kMarketPrice) {
    if (auto m = checkBidPrice(price, issue); !m.empty()) return m;
  }
  const std::string series = vtSeries(exchange, type);
  if (auto m = checkCutOff(l, series); !m.empty()) return m;
  return issue ? checkAgainstVtIssue(l, *issue, series) : std::string();
}
