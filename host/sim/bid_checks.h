// The exchange's own checks of a bid and of a change to an order; the first failing one is
// the refusal.
#pragma once

#include <cstdint>
#include <string>

#include "host/sim/refusals.h"
#include "host/sim/sim_data.h"

namespace sim {

// The issue takes bids on `today`: its bidding flag is not "N" and today lies within its open
// and close dates (a date that is no date closes it).
MaybeRefusal biddingRefusal(const Issue& issue, int64_t today);
// Quantity against the minimum and the lot, then the price against the floor and the tick; a
// cut-off ("MKT") bid has no price to check but needs an issue that takes cut-off bids.
MaybeRefusal bidRefusal(const Issue& issue, int64_t quantity, const std::string& priceType,
                        int64_t paise);
// A modify or cancel: the order is open, its issue takes bids and allows changes.
MaybeRefusal changeRefusal(const Order& order, const Issue* issue, int64_t today);
// A carry forward: a change the issue allows, of a non-retail bid, on an issue that has a day
// of bidding after today.
MaybeRefusal carryForwardRefusal(const Order& order, const Issue* issue, int64_t today);

}  // namespace sim
