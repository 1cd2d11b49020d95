// Reading the order requests: what a well-formed placement says, and the new price and
// quantity of a modification.
#pragma once

#include "host/sim/refusals.h"
#include "host/sim/request_fields.h"
#include "host/sim/sim_data.h"

namespace sim {

// A placement needs its user, issue, quantity, price type and price (none for "MKT"), and its
// client: 54001 for "om_put_order_ofs", 64916 for "om_put_order_walkin".
MaybeRefusal malformedPlacement(const RequestFields& request);
// The order a well-formed placement asks for; its exchange is the request's until the issue
// is known.
Order placedOrder(const RequestFields& request);
MaybeRefusal malformedChange(const RequestFields& request, bool modify);
// The order with the modification's price type, price and quantity.
void applyModification(const RequestFields& request, Order& order);
bool isWalkinRequest(const RequestFields& request);

}  // namespace sim
