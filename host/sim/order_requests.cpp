#include "host/sim/order_requests.h"

#include "host/sim/request_checks.h"

namespace sim {

namespace {

std::string textOr(const RequestFields& request, uint32_t id, const std::string& otherwise) {
  const std::string text = request.text(id);
  return text.empty() ? otherwise : text;
}

}  // namespace

bool isWalkinRequest(const RequestFields& request) {
  return request.name().ends_with("_walkin");
}

MaybeRefusal malformedPlacement(const RequestFields& request) {
  const uint32_t client = isWalkinRequest(request) ? 64916 : 54001;
  return firstOf({requireFields(request, {31003, client, 63100, 12008}),
                  requireIpoExchange(request), requireCount(request, 12004),
                  requirePrice(request)});
}

Order placedOrder(const RequestFields& request) {
  Order order;
  order.exchange = request.text(63001);
  order.user = request.text(31003);
  if (isWalkinRequest(request)) {
    order.walkin = request.text(64916);
  } else {
    order.account = request.text(54001);
  }
  order.issueId = request.text(63100);
  order.side = textOr(request, 12003, "B");
  order.proCli = textOr(request, 54056, "C");
  order.margin = textOr(request, 64170, "NO");
  order.pCode = request.text(10332);
  order.bsePCode = request.text(13034);
  order.category = request.text(63058);
  order.guiNumber = request.text(54158);
  applyModification(request, order);
  return order;
}

MaybeRefusal malformedChange(const RequestFields& request, bool modify) {
  if (!modify) return requireFields(request, {64001});
  return firstOf(
      {requireFields(request, {64001}), requireCount(request, 12004), requirePrice(request)});
}

void applyModification(const RequestFields& request, Order& order) {
  const bool market = request.text(12008) == "MKT";
  order.priceType = market ? "MKT" : "L";
  order.price = market ? "MKT" : request.text(10306);
  order.quantity = request.text(12004);
}

}  // namespace sim
