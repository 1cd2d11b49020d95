#include "basket/bulk_manual_entry.h"

#include <cstdio>
#include <cstdlib>

#include "domain/amount_rules.h"
#include "domain/char_classes.h"
#include "domain/client_rules.h"
#include "domain/issue_terms.h"

namespace {

std::string checkAmount(const BulkEntry& e, const sOFSCol* issue) {
  if (!issue) return {};
  std::string message;
  const BidAmount amount{vtSeries(e.exchange, e.orderType),
                         e.price,
                         e.quantity,
                         ceilingPriceOf(*issue),
                         retailLimitOf(*issue),
                         nonRetailLimitOf(*issue)};
  checkBidAmount(amount, message);
  return message;
}

std::string checkPrice(const BulkEntry& e, const sOFSCol* issue) {
  if (e.price.empty()) return "Please enter price";
  if (e.price == "MKT") return {};
  const double price = std::strtod(e.price.c_str(), nullptr);
  const double floor = issue ? std::strtod(issue->floorPrice.c_str(), nullptr) : 0.0;
  if (issue && price <= floor) {
    char text[64];
    std::snprintf(text, sizeof text, "%.04f", floor);
    return std::string("Price Should be more than Floor Price ") + text;
  }
  if (price == 0.0) return "Price cant be zero";
  return {};
}

}  // namespace

std::string checkBulkEntry(const BulkEntry& e, const sOFSCol* issue) {
  if (e.clientId.empty()) return "Please select AccountId";
  if (e.proCli == "PRO" && e.margin != "100% Margin") {
    return "Margin Indicator should be set as 100% for PRO order";
  }
  if (!isAlphanumeric(e.clientId)) return "Please enter an alphanumeric value for Client Code.";
  if (!isAlphanumeric(e.pCode)) return "Please enter an alphanumeric value for participant code.";
  if (e.quantity.empty()) return "Please enter some quantity";
  if (auto m = checkAmount(e, issue); !m.empty()) return m;
  std::string message;
  if (!checkPCodeOrderType(e.pCode, e.orderType, message)) return message;
  if (e.quantity.size() > 9) return "Qty. should not be more than 9 Digits";
  return checkPrice(e, issue);
}

std::string vtLineOf(const BulkEntry& e) {
  std::string line;
  for (const std::string* field : {&e.exchange, &e.proCli, &e.clientId, &e.pCode, &e.ofsId,
                                   &e.quantity, &e.price, &e.margin}) {
    (line += *field) += ',';
  }
  (line += e.cutOff ? 'Y' : 'N') += ',';
  ((line += e.orderType) += ',') += e.category;
  return line += '\n';
}
