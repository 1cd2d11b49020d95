// An order as the exchange sends it: in replies and broadcasts, in its history, in a filter.
#pragma once

#include "host/sim/sim_data.h"
#include "host/sim/sim_message.h"

namespace sim {

// Every field of the order. A BSE order also carries 64739, the participant code the
// placement reply is read by.
SimFields orderRow(const Order& order);
SimFields historyRow(const Order& order, const OrderEvent& event);
SimFields filterRow(const Order& order);

}  // namespace sim
