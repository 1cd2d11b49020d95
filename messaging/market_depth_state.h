// What the Market Depth window shows while it is open: five bid levels and their total.
#pragma once

#include <array>
#include <cstdint>
#include <string>

struct MarketDepthLevel {
  int32_t price = 0;
  int32_t quantity = 0;
  int32_t bids = 0;
};

struct MarketDepthState {
  std::string exchange;  // the instrument shown
  std::string symbol;
  std::string lastUpdate;  // "NA" when a reply gives none
  std::array<MarketDepthLevel, 5> levels{};
  int64_t totalBidQuantity = 0;  // "TBQ"
};
