// The simulated exchange: answers the plug-in's requests from its data and its order book, and
// tells subscribers of order changes. Plain C++; the caller delivers what it returns.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "connectvorn/connectvorn.h"
#include "host/backend.h"
#include "host/sim/answers.h"
#include "host/sim/sim_data.h"
#include "host/sim/subscriptions.h"

namespace sim {

// The exchange's own number of an order (49238), made from the order number.
std::string exchangeOrderNumber(const std::string& number);

class SimExchange {
 public:
  struct Options {
    // Seconds since 1970: today's date and the orders' times.
    std::function<int64_t()> clock;
    // The participant code of an account the data file does not list but the terminal knows;
    // nullopt when it does not know it either. May be empty.
    std::function<std::optional<std::string>(const std::string&)> terminalAccount;
  };

  SimExchange(ExchangeData data, Options options);

  // Everything the request brings about, in delivery order.
  Deliveries request(const otp_message& msg, IIrbeNotifier* asker);
  // A price-feed subscription of an issue (63001 and 10100) is answered at once with the
  // issue's market depth, as a feed starts with a snapshot.
  Deliveries subscribe(const KeyValues& keys, IIrbeNotifier* to);
  // A notifier that is gone hears nothing more.
  void forget(IIrbeNotifier* to);

  const Order* findOrder(const std::string& number) const;
  const ExchangeData& data() const { return data_; }

 private:
  using Handler = void (SimExchange::*)(const RequestFields&, Answers&);
  static const std::pair<const char*, Handler> kHandlers[];

  // Queries.
  void answerIssues(const RequestFields& request, Answers& answers);
  void answerCategories(const RequestFields& request, Answers& answers);
  void answerOrderReport(const RequestFields& request, Answers& answers);
  void answerUserOrders(const RequestFields& request, Answers& answers);
  void answerHistory(const RequestFields& request, Answers& answers);
  void answerFilter(const RequestFields& request, Answers& answers);
  void answerPeerData(const RequestFields& request, Answers& answers);
  void answerAccountInfo(const RequestFields& request, Answers& answers);
  void answerCustodian(const RequestFields& request, Answers& answers);
  void answerCompanyIssue(const RequestFields& request, Answers& answers);
  void answerMarketData(const RequestFields& request, Answers& answers);
  // Orders.
  void placeOrder(const RequestFields& request, Answers& answers);
  void modifyOrder(const RequestFields& request, Answers& answers);
  void cancelOrder(const RequestFields& request, Answers& answers);
  void carryForward(const RequestFields& request, Answers& answers);
  // Issue administration.
  void addIssue(const RequestFields& request, Answers& answers);
  void allot(const RequestFields& request, Answers& answers);
  void deleteUnallotted(const RequestFields& request, Answers& answers);

  void answerOrders(Answers& answers, const std::function<bool(const Order&)>& wanted);
  MaybeRefusal placementRefusal(const Order& order, const Issue* issue) const;
  void rejectPlacement(Order order, const Refusal& refusal, Answers& answers);
  void refuseChange(Order& order, const std::string& event, const Refusal& refusal,
                    Answers& answers);
  Order& record(Order order);
  void setStatus(Order& order, const std::string& status, const std::string& event = "");
  void broadcast(const Order& order, Answers& answers) const;
  // The issue's market depth as it stands now.
  SimFields depthOf(const Issue& issue) const;

  int64_t today() const;
  std::optional<Account> account(const std::string& id) const;
  Issue* findIssue(const std::string& id);
  Issue* findIssue(const std::string& exchange, const std::string& symbol);
  // By id or by its code (field 3) on the exchange, as the administration requests name it.
  Issue* findIssueByIdOrCode(const std::string& exchange, const std::string& key);
  Order* orderOf(const std::string& number);

  ExchangeData data_;
  Options options_;
  Subscriptions subscriptions_;
  int64_t nextOrder_ = 1001;
  int64_t nextIssue_ = 1;
};

}  // namespace sim
