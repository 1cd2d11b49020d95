// Why the simulated exchange refuses a request: a code and a text, as the error end carries
// them (32766 twice). E1xx: the request itself is wrong; E2xx: the exchange says no.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace sim {

struct Refusal {
  std::string code;
  std::string text;
  bool operator==(const Refusal&) const = default;
};

using MaybeRefusal = std::optional<Refusal>;

Refusal unknownRequest(const std::string& name);
Refusal missingField(uint32_t id);
Refusal badField(uint32_t id, const std::string& value);
Refusal unknownIssue(const std::string& issue);
Refusal notOpenForBidding(const std::string& issue);
Refusal unknownAccount(const std::string& account);
Refusal unknownOrder(const std::string& order);
Refusal orderNotOpen(const std::string& order);
Refusal noModifyOrCancel(const std::string& issue);
Refusal belowMinimumQuantity(int64_t quantity, int64_t minimum);
Refusal notLotMultiple(int64_t quantity, int64_t lot);
Refusal belowFloorPrice(const std::string& price, const std::string& floor);
Refusal notTickMultiple(const std::string& price, const std::string& tick);
Refusal noCutOff(const std::string& issue);
Refusal noMarketData(const std::string& exchange, const std::string& symbol);
Refusal noCarryForward(const std::string& issue, const std::string& why);

}  // namespace sim
