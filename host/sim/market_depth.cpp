#include "host/sim/market_depth.h"

#include <algorithm>
#include <functional>
#include <map>

#include "host/sim/sim_dates.h"
#include "host/sim/sim_numbers.h"

namespace sim {

namespace {

struct Level {
  int64_t quantity = 0;
  int64_t bids = 0;
};

}  // namespace

SimFields assetPriceRow(const Asset& asset) {
  return {{63001, asset.exchange},
          {10100, asset.symbol},
          {6, std::to_string(asset.ltp)},
          {63050, std::to_string(asset.decimals)}};
}

SimFields depthRow(const std::string& exchange, const std::string& symbol,
                   const std::vector<const Order*>& bids) {
  std::map<int64_t, Level, std::greater<>> levels;
  int64_t total = 0;
  int64_t latest = 0;
  for (const Order* bid : bids) {
    const int64_t quantity = parseCount(bid->quantity).value_or(0);
    total += quantity;
    latest = std::max(latest, bid->updated);
    if (const auto price = parseCount(bid->price)) {
      levels[*price].quantity += quantity;
      levels[*price].bids += 1;
    }
  }
  SimFields row{{63001, exchange}, {10100, symbol}, {63080, bids.empty() ? "" : timeText(latest)}};
  auto level = levels.begin();
  for (uint32_t i = 0; i < 5; ++i) {
    const bool filled = level != levels.end();
    row.emplace_back(55000 + i, filled ? std::to_string(level->first) : "0");
    row.emplace_back(55500 + i, filled ? std::to_string(level->second.quantity) : "0");
    row.emplace_back(56000 + i, filled ? std::to_string(level->second.bids) : "0");
    if (filled) ++level;
  }
  row.emplace_back(54283, std::to_string(total));
  return row;
}

}  // namespace sim
