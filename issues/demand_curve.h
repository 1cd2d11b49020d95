// The demand picture of an issue: how much is bid at each price or above, from the bid levels
// of its market depth, with the floor and indicative prices placed on the same axis.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "messaging/market_depth_state.h"

struct DemandPoint {
  int64_t pricePaise = 0;
  int64_t quantity = 0;  // bid at this price or above

  bool operator==(const DemandPoint&) const = default;
};

struct AxisRange {
  int64_t low = 0;
  int64_t high = 0;

  bool operator==(const AxisRange&) const = default;
};

struct DemandCurve {
  // One point a price, highest price first, as an OFS book fills from the top.
  std::vector<DemandPoint> points;
  std::optional<int64_t> floorPaise;
  std::optional<int64_t> indicativePaise;
  AxisRange price;     // paise; every point and marker lies strictly inside
  AxisRange quantity;  // from 0 to a little above the whole quantity

  bool empty() const { return points.empty(); }
  // The step line from the low end of the price axis to the high end: the whole quantity on
  // the left, dropping by each level's quantity just after its price, zero on the right.
  std::vector<DemandPoint> steps() const;
};

// Levels without a price or a quantity are empty places of the depth and are left out;
// `floorPrice` and `indicativePrice` are rupee texts, marked only when they hold a price.
DemandCurve demandCurve(std::span<const MarketDepthLevel> levels, const std::string& floorPrice,
                        const std::string& indicativePrice);

// Round values (1, 2 or 5 times a power of ten) inside `range`, at most `maxCount` of them and
// at least one when the range is not empty.
std::vector<int64_t> axisTicks(AxisRange range, int maxCount);

// "125.50"
std::string priceLabel(int64_t paise);
// The way Indian desks say quantities: "750", "25K", "1.5L" (lakh), "2Cr" (crore).
std::string quantityLabel(int64_t quantity);
