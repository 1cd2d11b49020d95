#include "host/sim/request_checks.h"

#include "host/sim/sim_numbers.h"

namespace sim {

MaybeRefusal requireFields(const RequestFields& request, std::initializer_list<uint32_t> ids) {
  for (uint32_t id : ids)
    if (request.text(id).empty()) return missingField(id);
  return std::nullopt;
}

MaybeRefusal requireIpoExchange(const RequestFields& request) {
  const std::string exchange = request.text(63001);
  if (exchange.empty()) return missingField(63001);
  if (exchange != "nse_ipo" && exchange != "bse_ipo") return badField(63001, exchange);
  return std::nullopt;
}

MaybeRefusal requireCount(const RequestFields& request, uint32_t id) {
  const std::string text = request.text(id);
  if (text.empty()) return missingField(id);
  const auto count = parseCount(text);
  if (!count || *count == 0) return badField(id, text);
  return std::nullopt;
}

MaybeRefusal requirePrice(const RequestFields& request) {
  if (request.text(12008) == "MKT") return std::nullopt;
  const std::string text = request.text(10306);
  if (text.empty()) return missingField(10306);
  if (!parseCount(text)) return badField(10306, text);
  return std::nullopt;
}

MaybeRefusal firstOf(std::initializer_list<MaybeRefusal> checks) {
  for (const MaybeRefusal& check : checks)
    if (check) return check;
  return std::nullopt;
}

}  // namespace sim
