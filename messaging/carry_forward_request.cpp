#include "messaging/carry_forward_request.h"

#include <cstdio>
#include <cstdlib>
#include <optional>

namespace {

constexpr char kCarryForwardPrefix[] = "carry_forward_ipo_ofs_order is failed , ";

// The record's paise as rupees with two decimals; a market order's price goes as it stands.
std::string rupeesText(const std::string& paise) {
  if (paise == "MKT") return paise;
  char text[40];
  std::snprintf(text, sizeof text, "%.02f", std::strtod(paise.c_str(), nullptr) / 100.0);
  return text;
}

}  // namespace

int32_t carryForwardOrder(const OrderContext& c, const sOFSOrderInfo& o, const std::string& date) {
  const bool isWalkin = o.clientId.empty();
  const std::string price = rupeesText(o.price);
  std::optional<std::string> uuid;
  if (c.getUuid) c.getUuid(uuid.emplace());
  Request r("om_carry_forward_ofs", kCarryForwardPrefix, Control::First);
  r.add(63001, o.exchange).add(31003, c.userId);
  r.add(isWalkin ? 64916 : 54001, isWalkin ? o.walkinClientId : o.clientId);
  r.add(63100, o.issueId).add(64001, o.ofsOrderNo).add(63058, "NonRetail").add(50110, date);
  r.add(10306, price).add(12004, o.quantity);
  if (uuid) r.add(54158, *uuid);
  return c.layer.sendOrder(r);
}
