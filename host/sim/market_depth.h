// Market data rows: an asset's last traded price and the five best bid levels of an issue.
#pragma once

#include <vector>

#include "host/sim/sim_data.h"
#include "host/sim/sim_message.h"

namespace sim {

// 63001, 10100, 6 (the price in 1/10^decimals rupee), 63050 (decimals).
SimFields assetPriceRow(const Asset& asset);
// The open limit bids grouped by price, best (highest) first: level i is 55000+i price in
// paise, 55500+i quantity, 56000+i number of bids, "0" for a level without bids. Cut-off bids
// have no price level but count in 54283, the total bid quantity. 63080 is the time of the
// latest change among the bids, empty when there are none.
SimFields depthRow(const std::string& exchange, const std::string& symbol,
                   const std::vector<const Order*>& bids);

}  // namespace sim
