// Carry forward: open non-retail bids go on into the offer's next day of bidding.
#include "domain/date_text.h"
#include "domain/issue_date.h"
#include "domain/series.h"
#include "messaging/carry_forward_request.h"
#include "orderbook/order_book.h"
#include "orderbook/order_book_rules.h"

namespace {

// A bid on an issue whose bidding ends today has no later day to go to.
bool isDayOrder(const sOFSCol& issue, int64_t now) {
  const int64_t today = parseIssueDate(localTimeText(now, "%d/%m/%Y"));
  return parseIssueDate(issue.field79) == today;
}

// The first refusal of one order, or empty. The issue's own closures come first: they are the
// administrator's and hold whatever the order is.
std::string carryForwardRefusal(const sOFSOrderInfo& order, const sOFSCol* issue, int64_t now) {
  if (order.status != "open") return "Please select an Open order.";
  // An issue the book no longer lists cannot be checked: treat it as closed by the
  // administrator.
  if (!issue || biddingClosed(issue))
    return "Carry Forward of bid not allowed. Please contact Administrator";
  if (modifyCancelClosed(issue)) return "Bid not allowed to Carry Forward";
  const std::string series = seriesOfSymbol(order.symbol);
  if (isRetailLikeSeries(series))
    return "Carry forward option is not allowed for " + series + " series orders.";
  if (isDayOrder(*issue, now)) return "Carry forward option is not allowed for day orders.";
  return {};
}

}  // namespace

void COrderBookDlgBar::carryForward(const std::vector<sOFSOrderInfo*>& selected) {
  if (selected.empty()) return port_.prompt().message("Please select an Open order.");
  for (const sOFSOrderInfo* order : selected) {
    const std::string refusal =
        carryForwardRefusal(*order, port_.issueOfOrder(*order), port_.now());
    if (!refusal.empty()) return port_.prompt().message(refusal);
  }
  const std::string date = localTimeText(port_.now(), "%m/%d/%Y");
  for (const sOFSOrderInfo* order : selected)
    if (carryForwardOrder(port_.orderContext(), *order, date) != 0) return;
  port_.prompt().message("Carry Forward request sent successfully.");
}
