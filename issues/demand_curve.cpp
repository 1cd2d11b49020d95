#include "issues/demand_curve.h"

#include <algorithm>
#include <functional>
#include <map>

#include "domain/issue_price_rules.h"

namespace {

std::optional<int64_t> markedPrice(const std::string& rupees) {
  if (!isRupeeText(rupees)) return std::nullopt;
  const int64_t paise = rupeeTextPaise(rupees);
  if (paise <= 0) return std::nullopt;
  return paise;
}

// Room around the prices so that no point or marker sits on the frame of the chart.
AxisRange paddedPriceRange(const DemandCurve& curve) {
  std::vector<int64_t> prices;
  for (const DemandPoint& point : curve.points) prices.push_back(point.pricePaise);
  for (const auto& marker : {curve.floorPaise, curve.indicativePaise})
    if (marker) prices.push_back(*marker);
  if (prices.empty()) return {};
  const auto [lowest, highest] = std::minmax_element(prices.begin(), prices.end());
  const int64_t span = *highest - *lowest;
  // A single price gets five percent either side, at least a rupee.
  const int64_t pad =
      span > 0 ? std::max<int64_t>(span / 10, 1) : std::max<int64_t>(*highest / 20, 100);
  return {std::max<int64_t>(*lowest - pad, 0), *highest + pad};
}

int64_t ticksInside(AxisRange range, int64_t step) {
  const int64_t first = (range.low + step - 1) / step;
  const int64_t last = range.high / step;
  return std::max<int64_t>(last - first + 1, 0);
}

std::vector<int64_t> ticksOf(AxisRange range, int64_t step, int maxCount) {
  std::vector<int64_t> ticks;
  for (int64_t value = (range.low + step - 1) / step * step;
       value <= range.high && static_cast<int>(ticks.size()) < maxCount; value += step)
    ticks.push_back(value);
  return ticks;
}

}  // namespace

std::vector<DemandPoint> DemandCurve::steps() const {
  std::vector<DemandPoint> line;
  if (points.empty()) return line;
  line.push_back({price.low, points.back().quantity});
  for (size_t i = points.size(); i-- > 0;) {
    const int64_t above = i > 0 ? points[i - 1].quantity : 0;
    line.push_back({points[i].pricePaise, points[i].quantity});
    line.push_back({points[i].pricePaise, above});
  }
  line.push_back({price.high, 0});
  return line;
}

DemandCurve demandCurve(std::span<const MarketDepthLevel> levels, const std::string& floorPrice,
                        const std::string& indicativePrice) {
  std::map<int64_t, int64_t, std::greater<>> byPrice;
  for (const MarketDepthLevel& level : levels)
    if (level.price > 0 && level.quantity > 0) byPrice[level.price] += level.quantity;

  DemandCurve curve;
  int64_t total = 0;
  for (const auto& [price, quantity] : byPrice) {
    total += quantity;
    curve.points.push_back({price, total});
  }
  curve.floorPaise = markedPrice(floorPrice);
  curve.indicativePaise = markedPrice(indicativePrice);
  curve.price = paddedPriceRange(curve);
  curve.quantity = {0, total + std::max<int64_t>(total / 10, 1)};
  return curve;
}

std::vector<int64_t> axisTicks(AxisRange range, int maxCount) {
  if (range.high < range.low) return {};
  maxCount = std::max(maxCount, 1);
  if (range.high == range.low) return {range.low};
  int64_t previous = 0;
  for (int64_t decade = 1;; decade *= 10) {
    for (int64_t step : {decade, 2 * decade, 5 * decade}) {
      const int64_t count = ticksInside(range, step);
      // Coarser steps may leave no round value inside: keep the first ones of the finer step.
      if (count == 0) return ticksOf(range, previous, maxCount);
      if (count <= maxCount) return ticksOf(range, step, maxCount);
      previous = step;
    }
  }
}

std::string priceLabel(int64_t paise) {
  const int64_t hundredths = paise % 100;
  return std::to_string(paise / 100) + (hundredths < 10 ? ".0" : ".") + std::to_string(hundredths);
}

std::string quantityLabel(int64_t quantity) {
  struct Unit {
    int64_t size;
    const char* suffix;
  };
  for (const Unit unit : {Unit{10'000'000, "Cr"}, Unit{100'000, "L"}, Unit{1'000, "K"}}) {
    if (quantity < unit.size) continue;
    int64_t whole = quantity / unit.size;
    int64_t hundredths = (quantity % unit.size * 100 + unit.size / 2) / unit.size;
    if (hundredths == 100) {
      ++whole;
      hundredths = 0;
    }
    std::string text = std::to_string(whole);
    if (hundredths > 0) {
      text += (hundredths < 10 ? ".0" : ".") + std::to_string(hundredths);
      if (text.back() == '0') text.pop_back();
    }
    return text + unit.suffix;
  }
  return std::to_string(quantity);
}
