#include "host/sim/subscriptions.h"

#include <algorithm>
#include <optional>

namespace sim {

namespace {

std::optional<std::string> key(const KeyValues& keys, uint32_t id) {
  for (const auto& [k, value] : keys)
    if (k == id) return value;
  return std::nullopt;
}

// A price feed (it names a symbol, 10100) carries market data, never orders.
bool covers(const KeyValues& keys, const Order& order) {
  if (key(keys, 10100)) return false;
  const auto exchange = key(keys, 63001);
  const auto account = key(keys, 54001);
  return exchange == order.exchange && (!account || account->empty() || *account == order.account);
}

}  // namespace

void Subscriptions::add(const KeyValues& keys, IIrbeNotifier* to) {
  const bool known = std::any_of(entries_.begin(), entries_.end(),
                                 [&](const Entry& e) { return e.to == to && e.keys == keys; });
  if (!known) entries_.push_back({keys, to});
}

void Subscriptions::forget(IIrbeNotifier* to) {
  std::erase_if(entries_, [to](const Entry& e) { return e.to == to; });
}

std::vector<IIrbeNotifier*> Subscriptions::covering(const Order& order) const {
  std::vector<IIrbeNotifier*> result;
  for (const Entry& e : entries_) {
    if (covers(e.keys, order) && std::find(result.begin(), result.end(), e.to) == result.end())
      result.push_back(e.to);
  }
  return result;
}

std::vector<IIrbeNotifier*> Subscriptions::feedOf(const std::string& exchange,
                                                  const std::string& symbol) const {
  std::vector<IIrbeNotifier*> out;
  for (const Entry& e : entries_) {
    if (key(e.keys, 63001) == exchange && key(e.keys, 10100) == symbol &&
        std::find(out.begin(), out.end(), e.to) == out.end())
      out.push_back(e.to);
  }
  return out;
}

}  // namespace sim
