#include <gtest/gtest.h>

#include <climits>
#include <ostream>
#include <string>

#include "domain/prices.h"

namespace {

struct PaiseCase {
  std::string name;
  std::string rupees;
  int32_t decimals;
  int32_t multiplier;
  int32_t expected;
  friend void PrintTo(const PaiseCase& c, std::ostream* os) { *os << c.name; }
};

class ConvertRupeesToPaise : public testing::TestWithParam<PaiseCase> {};

TEST_P(ConvertRupeesToPaise, RoundsHalfUpAndOverflowsToMinusOne) {
  const PaiseCase& c = GetParam();
  EXPECT_EQ(convertRupeesToPaise(c.rupees.c_str(), c.decimals, c.multiplier), c.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ConvertRupeesToPaise,
    testing::Values(PaiseCase{"HalfUp", "123.455", 2, 1, 12346},
                    PaiseCase{"StoredBelowHalf", "1.005", 2, 1, 100},
                    PaiseCase{"IntMax", "21474836.47", 2, 1, INT_MAX},
                    PaiseCase{"AboveIntMax", "21474836.48", 2, 1, -1},
                    PaiseCase{"NegativeKept", "-1.25", 2, 1, -125},
                    PaiseCase{"BelowIntMin", "-99999999", 2, 1, INT_MIN},
                    PaiseCase{"NotANumber", "abc", 2, 1, 0},
                    PaiseCase{"TrailingText", " +12abc", 2, 1, 1200},
                    PaiseCase{"HexIsNotDecimal", "0x10", 2, 1, 0},
                    PaiseCase{"DecimalsAndMultiplier", "12.5", 3, 10, 125000},
                    PaiseCase{"NoDecimals", "12.5", 0, 1, 13},
                    PaiseCase{"Huge", "0.5e400", 2, 1, -1}, PaiseCase{"Tiny", "100e-400", 2, 1, 0},
                    PaiseCase{"TinyWithoutExponent", "0." + std::string(400, '0') + "1", 2, 1, 0}));

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
