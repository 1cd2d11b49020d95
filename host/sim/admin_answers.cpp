// Issue administration: adding or changing an issue, allotment, cancelling unallotted orders.
#include "host/sim/request_checks.h"
#include "host/sim/sim_dates.h"
#include "host/sim/sim_exchange.h"
#include "host/sim/sim_numbers.h"

namespace sim {

namespace {

// An open or close date the issue lists can place: a day text, or days from today ("+3").
MaybeRefusal requireDay(const RequestFields& request, uint32_t id, int64_t today) {
  const std::string text = request.text(id);
  if (text.empty()) return missingField(id);
  if (!parseDayText(resolveDate(text, today))) return badField(id, text);
  return std::nullopt;
}

// A tick above zero, in rupees with at most two decimals: every price check divides by it.
MaybeRefusal requireTick(const RequestFields& request) {
  const std::string text = request.text(issue_field::kTick);
  const auto paise = parseFixed(text, 2);
  if (!paise || *paise == 0) return badField(issue_field::kTick, text);
  return std::nullopt;
}

}  // namespace

// The issue becomes what the request says; one with the same exchange and symbol keeps its id,
// a new one gets the next. A request that would leave an issue the lists cannot place or the
// bid checks cannot use is refused and changes nothing.
void SimExchange::addIssue(const RequestFields& request, Answers& answers) {
  using namespace issue_field;
  if (auto bad = firstOf(
          {requireIpoExchange(request), requireFields(request, {kSymbol, kCode, kSeries, kFloor}),
           requireDay(request, kOpen, today()), requireDay(request, kClose, today()),
           requireCount(request, kMinQuantity), requireCount(request, kLot), requireTick(request)}))
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
