// Placing, modifying and cancelling orders. An accepted action is answered with the order's
// row and a successful end, then broadcast; a refused one with an error end, then broadcast
// with the reason in 20008 (a refused placement as a "rejected" order).
#include "host/sim/bid_checks.h"
#include "host/sim/order_requests.h"
#include "host/sim/order_rows.h"
#include "host/sim/request_checks.h"
#include "host/sim/sim_exchange.h"
#include "host/sim/sim_numbers.h"

namespace sim {

namespace {

int64_t paiseOf(const Order& order) {
  return parseCount(order.price).value_or(0);
}

}  // namespace

MaybeRefusal SimExchange::placementRefusal(const Order& order, const Issue* issue) const {
  if (!issue) return unknownIssue(order.issueId);
  if (auto refusal = biddingRefusal(*issue, today())) return refusal;
  if (!order.isWalkin() && !account(order.account)) return unknownAccount(order.account);
  return bidRefusal(*issue, parseCount(order.quantity).value_or(0), order.priceType,
                    paiseOf(order));
}

void SimExchange::placeOrder(const RequestFields& request, Answers& answers) {
  if (auto bad = malformedPlacement(request)) return answers.fail(*bad);
  Order order = placedOrder(request);
  order.number = std::to_string(nextOrder_++);
  // A walk-in placement always says "nse_ipo"; the issue decides the exchange.
  const Issue* issue = findIssue(order.issueId);
  if (issue) {
    order.exchange = issue->exchange();
    order.symbol = issue->symbol();
  }
  if (auto refusal = placementRefusal(order, issue))
    return rejectPlacement(std::move(order), *refusal, answers);
  order.exchangeNumber = exchangeOrderNumber(order.number);
  Order& placed = record(std::move(order));
  setStatus(placed, "open pending");
  answers.row(orderRow(placed));
  answers.succeed();
  broadcast(placed, answers);
  setStatus(placed, "open");
  broadcast(placed, answers);
}

void SimExchange::rejectPlacement(Order order, const Refusal& refusal, Answers& answers) {
  order.reason = refusal.text;
  Order& rejected = record(std::move(order));
  setStatus(rejected, "rejected");
  answers.fail(refusal);
  broadcast(rejected, answers);
}

// The order keeps its status; the reason and the history say what was refused.
void SimExchange::refuseChange(Order& order, const std::string& event, const Refusal& refusal,
                               Answers& answers) {
  order.reason = refusal.text;
  setStatus(order, order.status, event);
  answers.fail(refusal);
  broadcast(order, answers);
}

void SimExchange::modifyOrder(const RequestFields& request, Answers& answers) {
  if (auto bad = malformedChange(request, true)) return answers.fail(*bad);
  Order* order = orderOf(request.text(64001));
  if (!order) return answers.fail(unknownOrder(request.text(64001)));
  const Issue* issue = findIssue(order->issueId);
  Order changed = *order;
  applyModification(request, changed);
  MaybeRefusal refusal = changeRefusal(*order, issue, today());
  if (!refusal)
    refusal = bidRefusal(*issue, parseCount(changed.quantity).value_or(0), changed.priceType,
                         paiseOf(changed));
  if (refusal) return refuseChange(*order, "modify rejected", *refusal, answers);
  applyModification(request, *order);
  order->reason.clear();
  setStatus(*order, "open", "modified");
  answers.row(orderRow(*order));
  answers.succeed();
  broadcast(*order, answers);
}

void SimExchange::cancelOrder(const RequestFields& request, Answers& answers) {
  if (auto bad = malformedChange(request, false)) return answers.fail(*bad);
  Order* order = orderOf(request.text(64001));
  if (!order) return answers.fail(unknownOrder(request.text(64001)));
  if (auto refusal = changeRefusal(*order, findIssue(order->issueId), today()))
    return refuseChange(*order, "cancel rejected", *refusal, answers);
  order->reason.clear();
  setStatus(*order, "cancelled");
  answers.row(orderRow(*order));
  answers.succeed();
  broadcast(*order, answers);
}

// A carried order stays open; its carry-forward status and its history say it was carried.
void SimExchange::carryForward(const RequestFields& request, Answers& answers) {
  if (auto bad = requireFields(request, {64001, 31003, 63058, 50110})) return answers.fail(*bad);
  Order* order = orderOf(request.text(64001));
  if (!order) return answers.fail(unknownOrder(request.text(64001)));
  if (auto refusal = carryForwardRefusal(*order, findIssue(order->issueId), today()))
    return refuseChange(*order, "carry forward rejected", *refusal, answers);
  order->reason.clear();
  order->cfStatus = "Carried Forward";
  setStatus(*order, order->status, "carried forward");
  answers.row(orderRow(*order));
  answers.succeed();
  broadcast(*order, answers);
}

}  // namespace sim
