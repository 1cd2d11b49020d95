#include <gtest/gtest.h>

#include "issues/demand_curve.h"

namespace {

using Levels = std::vector<MarketDepthLevel>;
using Points = std::vector<DemandPoint>;

struct CurveCase {
  const char* name;
  Levels levels;
  const char* floor;
  const char* indicative;
  Points points;
  AxisRange price;
  AxisRange quantity;
};

TEST(DemandCurve, LevelsAccumulateFromTheHighestPriceAndTheAxesHoldEveryPriceShown) {
  const CurveCase cases[] = {
      CurveCase("unsorted levels, empty places skipped",
                {{10000, 5, 1}, {10500, 3, 1}, {10200, 2, 1}, {0, 0, 0}, {0, 0, 0}}, "", "",
                {{10500, 3}, {10200, 5}, {10000, 10}}, {9950, 10550}, {0, 11}),
      CurveCase("empty book keeps the markers' range", Levels(5), "100.00", "105.00", {},
                {9950, 10550}, {0, 1}),
      CurveCase("floor below and indicative above the levels", {{10200, 4, 1}, {10100, 6, 2}}, "95",
                "110.50", {{10200, 4}, {10100, 10}}, {9345, 11205}, {0, 11}),
      CurveCase("one price twice, a price without quantity",
                {{10000, 5, 1}, {0, 7, 1}, {10000, 5, 1}, {9000, 0, 0}}, "", "", {{10000, 10}},
                {9500, 10500}, {0, 11}),
      CurveCase("texts that are no price mark nothing", {{10000, 100, 4}}, "abc", "0",
                {{10000, 100}}, {9500, 10500}, {0, 110}),
  };
  for (const CurveCase& c : cases) {
    const DemandCurve curve = demandCurve(c.levels, c.floor, c.indicative);
    EXPECT_EQ(curve.points, c.points) << c.name;
    EXPECT_EQ(curve.price, c.price) << c.name;
    EXPECT_EQ(curve.quantity, c.quantity) << c.name;
  }
  const DemandCurve marked = demandCurve({}, "100.00", "105.5");
  EXPECT_EQ(marked.floorPaise, 10000);
  EXPECT_EQ(marked.indicativePaise, 10550);
  EXPECT_FALSE(demandCurve({}, "abc", "0").floorPaise.has_value());
}

TEST(DemandCurve, StepsDropByEachLevelJustAfterItsPrice) {
  const DemandCurve curve =
      demandCurve(Levels{{10000, 5, 1}, {10500, 3, 1}, {10200, 2, 1}}, "", "");
  const Points steps{{9950, 10}, {10000, 10}, {10000, 5}, {10200, 5},
                     {10200, 3}, {10500, 3},  {10500, 0}, {10550, 0}};
  EXPECT_EQ(curve.steps(), steps);
  EXPECT_TRUE(demandCurve(Levels(5), "100", "").steps().empty());
}

TEST(DemandCurve, TicksAreRoundValuesInsideTheRangeAndNeverTooMany) {
  struct TickCase {
    const char* name;
    AxisRange range;
    int maxCount;
    std::vector<int64_t> ticks;
  };
  const TickCase cases[] = {
      {"prices in steps of two rupees", {9950, 10550}, 5, {10000, 10200, 10400}},
      {"quantities in fives", {0, 11}, 4, {0, 5, 10}},
      {"room for one", {0, 110}, 1, {0}},
      {"one round value inside", {101, 199}, 1, {150}},
      {"coarser step leaves none inside: the finer one's first", {101, 149}, 1, {120}},
      {"a point", {5, 5}, 3, {5}},
      {"no range", {6, 5}, 3, {}},
  };
  for (const TickCase& c : cases) EXPECT_EQ(axisTicks(c.range, c.maxCount), c.ticks) << c.name;
}

TEST(DemandCurve, LabelsReadAsOnAnIndianDesk) {
  const std::pair<int64_t, const char*> prices[] = {
      {12550, "125.50"}, {5, "0.05"}, {100000, "1000.00"}};
  for (const auto& [paise, text] : prices) EXPECT_EQ(priceLabel(paise), text);
  const std::pair<int64_t, const char*> quantities[] = {
      {999, "999"},      {1000, "1K"},    {10500, "10.5K"},  {1005, "1.01K"}, {150000, "1.5L"},
      {123456, "1.23L"}, {999999, "10L"}, {20000000, "2Cr"}, {0, "0"}};
  for (const auto& [quantity, text] : quantities) EXPECT_EQ(quantityLabel(quantity), text);
}

}  // namespace
