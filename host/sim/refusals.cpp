#include "host/sim/refusals.h"

namespace sim {

Refusal unknownRequest(const std::string& name) {
  return {"E100", "Unknown request " + name};
}
Refusal missingField(uint32_t id) {
  return {"E101", "Field " + std::to_string(id) + " is missing"};
}
Refusal badField(uint32_t id, const std::string& value) {
  return {"E102", "Field " + std::to_string(id) + " has a bad value: " + value};
}
Refusal unknownIssue(const std::string& issue) {
  return {"E200", "Issue " + issue + " is not known"};
}
Refusal notOpenForBidding(const std::string& issue) {
  return {"E201", "Issue " + issue + " is not open for bidding"};
}
Refusal unknownAccount(const std::string& account) {
  return {"E202", "Account " + account + " is not known"};
}
Refusal unknownOrder(const std::string& order) {
  return {"E203", "Order " + order + " is not known"};
}
Refusal orderNotOpen(const std::string& order) {
  return {"E204", "Order " + order + " is no longer open"};
}
Refusal noModifyOrCancel(const std::string& issue) {
  return {"E205", "Orders of issue " + issue + " may not be modified or cancelled"};
}
Refusal belowMinimumQuantity(int64_t quantity, int64_t minimum) {
  return {"E206", "Quantity " + std::to_string(quantity) + " is below the minimum of " +
                      std::to_string(minimum)};
}
Refusal notLotMultiple(int64_t quantity, int64_t lot) {
  return {"E207", "Quantity " + std::to_string(quantity) + " is not a multiple of the lot of " +
                      std::to_string(lot)};
}
Refusal belowFloorPrice(const std::string& price, const std::string& floor) {
  return {"E208", "Price " + price + " is below the floor price " + floor};
}
Refusal notTickMultiple(const std::string& price, const std::string& tick) {
  return {"E209", "Price " + price + " is not a multiple of the tick " + tick};
}
Refusal noCutOff(const std::string& issue) {
  return {"E210", "Issue " + issue + " takes no cut-off bids"};
}
Refusal noMarketData(const std::string& exchange, const std::string& symbol) {
  return {"E211", "No market data for " + exchange + " " + symbol};
}
Refusal noCarryForward(const std::string& issue, const std::string& why) {
  return {"E212", "Orders of issue " + issue + " cannot be carried forward: " + why};
}

}  // namespace sim
