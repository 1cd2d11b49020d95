#include "host/sim/sim_exchange.h"

#include <algorithm>

#include "host/sim/market_depth.h"
#include "host/sim/order_rows.h"
#include "host/sim/sim_dates.h"
#include "host/sim/sim_numbers.h"

namespace sim {

std::string exchangeOrderNumber(const std::string& number) {
  return std::to_string(1000000000 + parseCount(number).value_or(0));
}

const std::pair<const char*, SimExchange::Handler> SimExchange::kHandlers[] = {
    {"om_get_ofs_issues", &SimExchange::answerIssues},
    {"om_get_ofs_category", &SimExchange::answerCategories},
    {"om_order_report_ofs", &SimExchange::answerOrderReport},
    {"om_get_user_order_ofs", &SimExchange::answerUserOrders},
    {"om_get_order_history_ofs", &SimExchange::answerHistory},
    {"om_filter_order_ofs", &SimExchange::answerFilter},
    {"om_get_user_peer_data", &SimExchange::answerPeerData},
    {"om_get_acct_info", &SimExchange::answerAccountInfo},
    {"get_bse_custodian", &SimExchange::answerCustodian},
    {"get_company_ofs_issue", &SimExchange::answerCompanyIssue},
    {"mrv_master", &SimExchange::answerMarketData},
    {"om_put_order_ofs", &SimExchange::placeOrder},
    {"om_put_order_walkin", &SimExchange::placeOrder},
    {"om_modify_order_ofs", &SimExchange::modifyOrder},
    {"om_modify_order_walkin", &SimExchange::modifyOrder},
    {"om_cancel_order_ofs", &SimExchange::cancelOrder},
    {"om_cancel_order_walkin", &SimExchange::cancelOrder},
    {"om_carry_forward_ofs", &SimExchange::carryForward},
    {"om_add_ofs_issue", &SimExchange::addIssue},
    {"om_ofs_allotment", &SimExchange::allot},
    {"om_delete_unalloted_ofs_issue", &SimExchange::deleteUnallotted},
};

SimExchange::SimExchange(ExchangeData data, Options options)
    : data_(std::move(data)), options_(std::move(options)) {
  for (const Issue& issue : data_.issues)
    nextIssue_ = std::max(nextIssue_, parseCount(issue.id()).value_or(0) + 1);
  for (Order& order : data_.orders) {
    nextOrder_ = std::max(nextOrder_, parseCount(order.number).value_or(0) + 1);
    if (order.exchangeNumber.empty()) order.exchangeNumber = exchangeOrderNumber(order.number);
    setStatus(order, order.status);
    // The data file's orders stood in the book before the exchange started: their one state
    // is dated when asked for, by the clock of that moment.
    order.history.back().time = 0;
  }
}

Deliveries SimExchange::request(const otp_message& msg, IIrbeNotifier* asker) {
  const RequestFields request(msg);
  Answers answers(request, asker);
  const std::string name = request.name();
  auto handler = std::find_if(std::begin(kHandlers), std::end(kHandlers),
                              [&](const auto& entry) { return name == entry.first; });
  if (handler == std::end(kHandlers)) {
    answers.fail(unknownRequest(name));
  } else {
    (this->*handler->second)(request, answers);
  }
  return std::move(answers.deliveries());
}

Deliveries SimExchange::subscribe(const KeyValues& keys, IIrbeNotifier* to) {
  subscriptions_.add(keys, to);
  std::string exchange;
  std::string symbol;
  for (const auto& [key, value] : keys) {
    if (key == 63001) exchange = value;
    if (key == 10100) symbol = value;
  }
  const Issue* issue = findIssue(exchange, symbol);
  if (!issue) return {};
  return {Delivery{to, true, depthOf(*issue)}};
}

SimFields SimExchange::depthOf(const Issue& issue) const {
  std::vector<const Order*> bids;
  for (const Order& order : data_.orders)
    if (order.issueId == issue.id() && order.isOpen()) bids.push_back(&order);
  return depthRow(issue.exchange(), issue.get(10100), bids);
}

void SimExchange::forget(IIrbeNotifier* to) {
  subscriptions_.forget(to);
}

Order& SimExchange::record(Order order) {
  data_.orders.push_back(std::move(order));
  return data_.orders.back();
}

// Every status change is a line of the order's history; `event` names it when it says more
// than the status ("modified", "cancel rejected").
void SimExchange::setStatus(Order& order, const std::string& status, const std::string& event) {
  order.status = status;
  order.updated = options_.clock();
  const auto fraction = static_cast<int32_t>(++data_.stateChanges % 1000);
  order.history.push_back({event.empty() ? status : event, order.price, order.quantity,
                           order.reason, order.updated, fraction});
}

void SimExchange::broadcast(const Order& order, Answers& answers) const {
  for (IIrbeNotifier* to : subscriptions_.covering(order)) answers.liveUpdate(to, orderRow(order));
  // The bids changed: whoever watches the issue's depth sees it move.
  auto issue = std::find_if(data_.issues.begin(), data_.issues.end(),
                            [&](const Issue& i) { return i.id() == order.issueId; });
  if (issue == data_.issues.end()) return;
  for (IIrbeNotifier* to : subscriptions_.feedOf(issue->exchange(), issue->get(10100)))
    answers.liveUpdate(to, depthOf(*issue));
}

int64_t SimExchange::today() const {
  return localDay(options_.clock());
}

std::optional<Account> SimExchange::account(const std::string& id) const {
  for (const Account& account : data_.accounts)
    if (account.id == id) return account;
  if (options_.terminalAccount)
    if (auto pCode = options_.terminalAccount(id)) return Account{id, *pCode, "", ""};
  // Bulk bids of a member's client name the account with the member's code after a "-"
  // ("A1-TM1"): the account is the client's.
  const size_t dash = id.find('-');
  if (dash != std::string::npos && dash > 0) return account(id.substr(0, dash));
  return std::nullopt;
}

Issue* SimExchange::findIssue(const std::string& id) {
  for (Issue& issue : data_.issues)
    if (issue.id() == id) return &issue;
  return nullptr;
}

Issue* SimExchange::findIssue(const std::string& exchange, const std::string& symbol) {
  for (Issue& issue : data_.issues)
    if (issue.exchange() == exchange && issue.symbol() == symbol) return &issue;
  return nullptr;
}

Issue* SimExchange::findIssueByIdOrCode(const std::string& exchange, const std::string& key) {
  for (Issue& issue : data_.issues) {
    if (issue.exchange() == exchange && (issue.id() == key || issue.get(issue_field::kCode) == key))
      return &issue;
  }
  return nullptr;
}

Order* SimExchange::orderOf(const std::string& number) {
  for (Order& order : data_.orders)
    if (order.number == number) return &order;
  return nullptr;
}

const Order* SimExchange::findOrder(const std::string& number) const {
  return const_cast<SimExchange*>(this)->orderOf(number);
}

}  // namespace sim
