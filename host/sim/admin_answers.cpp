// Issue administration: adding or changing an issue, allotment, cancelling unallotted orders.
#include "host/sim/request_checks.h"
#include "host/sim/sim_exchange.h"

namespace sim {

// The issue becomes what the request says; one with the same exchange and symbol keeps its id,
// a new one gets the next.
void SimExchange::addIssue(const RequestFields& request, Answers& answers) {
  if (auto bad = firstOf({requireIpoExchange(request), requireFields(request, {10100})}))
    return answers.fail(*bad);
  Issue issue;
  for (const auto& [id, value] : request.all())
    if (id != kTag) issue.fields[id] = value;
  Issue* known = findIssue(request.text(63001), request.text(10100));
  issue.fields[issue_field::kId] = known ? known->id() : std::to_string(nextIssue_++);
  if (known) {
    *known = std::move(issue);
  } else {
    data_.issues.push_back(std::move(issue));
  }
  answers.succeed();
}

// The open order that the allotment names, by exchange order number (49238) or else by
// account and issue, is complete and carries what was allotted (10308 shares at 10307 paise)
// from then on, in this broadcast and in every later book reply.
void SimExchange::allot(const RequestFields& request, Answers& answers) {
  if (auto bad = firstOf({requireIpoExchange(request), requireFields(request, {3, 54001}),
                          requireCount(request, 12004)}))
    return answers.fail(*bad);
  const std::string exchange = request.text(63001);
  const Issue* issue = findIssueByIdOrCode(exchange, request.text(3));
  const std::string exchangeNumber = request.text(49238);
  Order* allotted = nullptr;
  for (Order& order : data_.orders) {
    const bool named = exchangeNumber.empty() ? issue && order.issueId == issue->id() &&
                                                    order.account == request.text(54001)
                                              : order.exchangeNumber == exchangeNumber;
    if (!allotted && order.isOpen() && order.exchange == exchange && named) allotted = &order;
  }
  answers.succeed();
  if (!allotted) return;
  allotted->allottedQuantity = request.text(10308);
  allotted->allottedPrice = request.text(10307);
  setStatus(*allotted, "complete");
  broadcast(*allotted, answers);
}

void SimExchange::deleteUnallotted(const RequestFields& request, Answers& answers) {
  if (auto bad = firstOf({requireIpoExchange(request), requireFields(request, {3})}))
    return answers.fail(*bad);
  const Issue* issue = findIssueByIdOrCode(request.text(63001), request.text(3));
  if (!issue) return answers.fail(unknownIssue(request.text(3)));
  answers.succeed();
  for (Order& order : data_.orders) {
    if (order.issueId != issue->id() || !order.isOpen()) continue;
    order.reason = "Unallotted order cancelled";
    setStatus(order, "cancelled");
    broadcast(order, answers);
  }
}

}  // namespace sim
