// "mrv_master": an asset's last traded price when the tag says "Asset LTP", else market depth.
#include "host/sim/market_depth.h"
#include "host/sim/request_checks.h"
#include "host/sim/sim_exchange.h"

namespace sim {

void SimExchange::answerMarketData(const RequestFields& request, Answers& answers) {
  if (auto bad = requireFields(request, {63001, 10100})) return answers.fail(*bad);
  const std::string exchange = request.text(63001);
  const std::string symbol = request.text(10100);
  const Asset* asset = nullptr;
  for (const Asset& a : data_.assets)
    if (a.exchange == exchange && a.symbol == symbol) asset = &a;
  if (request.text(kTag) == "Asset LTP") {
    if (!asset) return answers.fail(noMarketData(exchange, symbol));
    answers.row(assetPriceRow(*asset));
    return answers.succeed();
  }
  const Issue* issue = findIssue(exchange, symbol);
  if (!issue && !asset) return answers.fail(noMarketData(exchange, symbol));
  std::vector<const Order*> bids;
  for (const Order& order : data_.orders)
    if (issue && order.issueId == issue->id() && order.isOpen()) bids.push_back(&order);
  answers.row(depthRow(exchange, symbol, bids));
  answers.succeed();
}

}  // namespace sim
