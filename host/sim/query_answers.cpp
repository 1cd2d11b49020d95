// The read-only requests: issue lists, categories, order reports, history, account lookups.
#include "host/sim/issue_rows.h"
#include "host/sim/order_rows.h"
#include "host/sim/request_checks.h"
#include "host/sim/sim_dates.h"
#include "host/sim/sim_exchange.h"

namespace sim {

void SimExchange::answerIssues(const RequestFields& request, Answers& answers) {
  if (auto bad = requireIpoExchange(request)) return answers.fail(*bad);
  const std::string exchange = request.text(63001);
  for (const Issue& issue : data_.issues)
    if (issue.exchange() == exchange) answers.row(issueRow(issue, today()));
  answers.succeed();
}

void SimExchange::answerCategories(const RequestFields&, Answers& answers) {
  for (const CategoryRow& row : data_.categories)
    answers.row({{10610, row.series}, {13034, row.value}});
  answers.succeed();
}

void SimExchange::answerOrders(Answers& answers, const std::function<bool(const Order&)>& wanted) {
  for (const Order& order : data_.orders)
    if (wanted(order)) answers.row(orderRow(order));
  answers.succeed();
}

// "C" reports the user's own-account orders that are not "F" (pro) orders, "F" the pro ones,
// so the two halves together hold each order once.
void SimExchange::answerOrderReport(const RequestFields& request, Answers& answers) {
  const std::string half = request.text(63059);
  if (auto bad = firstOf({requireFields(request, {63059, 31003}), requireIpoExchange(request)}))
    return answers.fail(*bad);
  if (half != "C" && half != "F") return answers.fail(badField(63059, half));
  const std::string exchange = request.text(63001);
  const std::string user = request.text(31003);
  answerOrders(answers, [&](const Order& o) {
    return !o.isWalkin() && o.exchange == exchange && o.user == user &&
           (o.proCli == "F") == (half == "F");
  });
}

void SimExchange::answerUserOrders(const RequestFields& request, Answers& answers) {
  if (auto bad = firstOf({requireFields(request, {31003}), requireIpoExchange(request)}))
    return answers.fail(*bad);
  const std::string exchange = request.text(63001);
  const std::string user = request.text(31003);
  answerOrders(answers, [&](const Order& o) {
    return o.isWalkin() && o.exchange == exchange && o.user == user;
  });
}

void SimExchange::answerHistory(const RequestFields& request, Answers& answers) {
  if (auto bad = requireFields(request, {64001})) return answers.fail(*bad);
  const Order* order = findOrder(request.text(64001));
  if (!order) return answers.fail(unknownOrder(request.text(64001)));
  // Orders of the data file entered the book at the market's opening of the day.
  const int64_t opening = sameDayAt(options_.clock(), 9, 15);
  for (OrderEvent event : order->history) {
    if (event.time == 0) event.time = opening;
    answers.row(historyRow(*order, event));
  }
  answers.succeed();
}

void SimExchange::answerFilter(const RequestFields& request, Answers& answers) {
  if (auto bad = requireFields(request, {64001})) return answers.fail(*bad);
  const Order* order = findOrder(request.text(64001));
  if (!order) return answers.fail(unknownOrder(request.text(64001)));
  answers.row(filterRow(*order));
  answers.succeed();
}

void SimExchange::answerPeerData(const RequestFields& request, Answers& answers) {
  if (auto bad = requireFields(request, {31003})) return answers.fail(*bad);
  auto it = data_.peerData.find(request.text(31003));
  answers.row({{28561, it == data_.peerData.end() ? "" : it->second}});
  answers.succeed();
}

void SimExchange::answerAccountInfo(const RequestFields& request, Answers& answers) {
  if (auto bad = requireFields(request, {54001})) return answers.fail(*bad);
  const auto found = account(request.text(54001));
  if (!found) return answers.fail(unknownAccount(request.text(54001)));
  answers.row(
      {{54001, found->id}, {10332, found->pCode}, {13034, found->custodian}, {54002, found->name}});
  answers.succeed();
}

void SimExchange::answerCustodian(const RequestFields& request, Answers& answers) {
  if (auto bad = requireFields(request, {54001})) return answers.fail(*bad);
  const auto found = account(request.text(54001));
  if (!found) return answers.fail(unknownAccount(request.text(54001)));
  answers.row({{54001, found->id}, {13034, found->custodian}});
  answers.succeed();
}

// The lookup names "nse_ipo" whatever the issue, so the id alone finds it.
void SimExchange::answerCompanyIssue(const RequestFields& request, Answers& answers) {
  if (auto bad = requireFields(request, {63032})) return answers.fail(*bad);
  const Issue* issue = findIssue(request.text(63032));
  if (!issue) return answers.fail(unknownIssue(request.text(63032)));
  answers.row(companyIssueRow(*issue));
  answers.succeed();
}

}  // namespace sim
