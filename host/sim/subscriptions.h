// Who hears of order changes. A subscription covers an order when it has key 63001 equal to the
// order's exchange and, if it has a non-empty key 54001, that equals the order's account. Its
// other keys (the user identity, 64001) are kept but not compared, and the control it came
// through does not matter. A price feed (a subscription naming a symbol, 10100) never covers an
// order: it hears the depth of its instrument instead.
#pragma once

#include <string>
#include <vector>

#include "host/backend.h"
#include "host/sim/sim_data.h"

namespace sim {

class Subscriptions {
 public:
  // A repeated subscription of the same notifier with the same keys is kept once.
  void add(const KeyValues& keys, IIrbeNotifier* to);
  void forget(IIrbeNotifier* to);
  // Each covering notifier once, in the order of their first covering subscription.
  std::vector<IIrbeNotifier*> covering(const Order& order) const;
  // Each notifier subscribed to the price feed (63001 and 10100) of an instrument, once.
  std::vector<IIrbeNotifier*> feedOf(const std::string& exchange, const std::string& symbol) const;
  size_t size() const { return entries_.size(); }

 private:
  struct Entry {
    KeyValues keys;
    IIrbeNotifier* to;
  };
  std::vector<Entry> entries_;
};

}  // namespace sim
