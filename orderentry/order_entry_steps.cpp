#include "orderentry/order_entry_steps.h"

#include "domain/amount_rules.h"
#include "domain/client_rules.h"
#include "domain/issue_terms.h"
#include "domain/number_text.h"

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
  if (leadingInt64(quantity) < issue.minQuantity) {
    return refusal("Order minimum Quantity is " +
                   std::to_string(static_cast<unsigned long long>(issue.minQuantity)));
  }
  return {};
}

Verdict checkLot(const std::string& quantity, const sOFSCol& issue) {
  if (issue.lotSize != 0 && leadingInt64(quantity) % issue.lotSize != 0) {
    return refusal("Qty should be a multiple of Lot which is " +
                   std::to_string(static_cast<unsigned long long>(issue.lotSize)) +
                   " for this security");
  }
  return {};
}

Verdict checkIssueSize(const std::string& quantity, const sOFSCol& issue) {
  if (issue.issueSize != 0 && static_cast<double>(leadingInt64(quantity)) > issue.issueSize) {
    return refusal("Qty should be lesser than " + fixedText(issue.issueSize, 0) +
                   " (Issue Size) for this security");
  }
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
