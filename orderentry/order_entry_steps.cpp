#include "orderentry/order_entry_steps.h"

#include "domain/amount_rules.h"
#include "domain/client_rules.h"
#include "domain/issue_terms.h"
#include "domain/number_text.h"
#include "domain/quantity_rules.h"

Verdict checkOpenForBids(const OrderEntryFields& fields, const SubmitContext& context) {
  if (!fields.closingTime.empty() && isPastClosingTime(fields.closingTime, context.now)) {
    return refusal("Cannot Place ofs after offer Closing time");
  }
  std::string message;
  if (!checkCategorySet(fields.exchange.text, fields.clientCategory.selected, message)) {
    return refusal(message);
  }
  return {};
}

Verdict checkMinimumQuantity(const std::string& quantity, const sOFSCol& issue) {
  std::string message;
  if (!checkQuantityMinimum(quantity, issue, message)) return refusal(message);
  return {};
}

Verdict checkLot(const std::string& quantity, const sOFSCol& issue) {
  std::string message;
  if (!checkQuantityLot(quantity, issue, message)) return refusal(message);
  return {};
}

Verdict checkIssueSize(const std::string& quantity, const sOFSCol& issue) {
  std::string message;
  if (!checkQuantityIssueSize(quantity, issue, message)) return refusal(message);
  return {};
}

Verdict checkCeiling(const std::string& price, const std::string& ceiling) {
  const double top = leadingDouble(ceiling);
  if (price != "MKT" && top > 0 && leadingDouble(price) > top) {
    return refusal("Price placed is beyond the Ceiling Price");
  }
  return {};
}

Verdict checkAmount(const std::string& series, const std::string& price, bool cutOff,
                    const std::string& quantity, const std::string& ceiling, const sOFSCol& issue) {
  const BidAmount amount{series,  cutOff ? "MKT" : price, quantity,
                         ceiling, retailLimitOf(issue),   nonRetailLimitOf(issue)};
  std::string message;
  if (!checkBidAmount(amount, message)) return refusal(message);
  return {};
}

Verdict checkNineDigits(const std::string& quantity) {
  if (leadingInt64(quantity) >= 1000000000) return refusal("Qty. should not be more than 9 Digits");
  return {};
}
