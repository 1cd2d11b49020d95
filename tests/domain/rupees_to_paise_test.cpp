#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <tuple>
#include <vector>

#include "domain/prices.h"

namespace {

// Rounds half up and overflows to -1.
TEST(ConvertRupeesToPaise, RoundsHalfUpAndOverflowsToMinusOne) {
  const std::vector<std::tuple<std::string, int32_t, int32_t, int32_t>> cases{
      {"123.455", 2, 1, 12346},
      {"1.005", 2, 1, 100},  // stored below the half
      {"21474836.47", 2, 1, INT_MAX},
      {"21474836.48", 2, 1, -1},
      {"-1.25", 2, 1, -125},
      {"-99999999", 2, 1, INT_MIN},
      {"abc", 2, 1, 0},
      {" +12abc", 2, 1, 1200},
      {"0x10", 2, 1, 0},
      {"12.5", 3, 10, 125000},
      {"12.5", 0, 1, 13},
      {"0.5e400", 2, 1, -1},
      {"100e-400", 2, 1, 0},
      {"0." + std::string(400, '0') + "1", 2, 1, 0}};
  for (const auto& [rupees, decimals, multiplier, paise] : cases)
    EXPECT_EQ(convertRupeesToPaise(rupees.c_str(), decimals, multiplier), paise)
        << rupees.substr(0, 20);
}

TEST(PaiseToRupeesText, TwoDecimalsExceptMarket) {
  EXPECT_EQ(paiseToRupeesText("MKT"), "MKT");
  EXPECT_EQ(paiseToRupeesText("mkt"), "0.00");
  EXPECT_EQ(paiseToRupeesText("12345"), "123.45");
  EXPECT_EQ(paiseToRupeesText("-150"), "-1.50");
  EXPECT_EQ(paiseToRupeesText("12.5"), "0.12");  // a tie printed to even, as "%.2lf" does
}

TEST(MonthNumber, ExactThreeLetterNames) {
  EXPECT_EQ(monthNumber("Jan"), 1);
  EXPECT_EQ(monthNumber("Feb"), 2);
  EXPECT_EQ(monthNumber("Dec"), 12);
  for (const char* other : {"feb", "JAN", "January", "Jan ", "", static_cast<const char*>(nullptr)})
    EXPECT_EQ(monthNumber(other), 0) << (other ? other : "null");
}

}  // namespace
