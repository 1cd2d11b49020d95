#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "domain/prices.h"

namespace {

struct TickCase {
  std::string name;
  bool tickInPaise;
  std::string price;
  int64_t tick;
  int32_t decimals;
  std::string message;  // empty when the price passes
  friend void PrintTo(const TickCase& c, std::ostream* os) { *os << c.name; }
};

std::string tickIs(const std::string& rupees) {
  return "Price should be multiple of Tick Size which is " + rupees + " rupees for this security";
}

const char kBad[] = "Please enter valid Price";
const char kRupees[] = "cannot have more than 7 digits in rupees part";
const char kPaise[] = "Please enter the paise correctly";

class PriceTick : public testing::TestWithParam<TickCase> {};

TEST_P(PriceTick, FirstFailingStepDecides) {
  const TickCase& c = GetParam();
  std::string message;
  int result = c.tickInPaise ? checkPriceTickPaise(c.price, message, c.tick, c.decimals)
                             : checkPriceTickRupees(c.price, message, c.tick, c.decimals);
  EXPECT_EQ(result, c.message.empty() ? 1 : 0);
  EXPECT_EQ(message, c.message);
}

INSTANTIATE_TEST_SUITE_P(
    Rupees, PriceTick,
    testing::Values(TickCase{"SecondPoint", false, "1.2.3", 0, 2, kBad},
                    TickCase{"Sign", false, "-5", 0, 2, kBad},
                    TickCase{"LetterBeforeLength", false, "1234567x8", 0, 2, kBad},
                    TickCase{"SevenDigits", false, "1234567", 1, 2, ""},
                    TickCase{"EightDigits", false, "12345678", 0, 2, kRupees},
                    TickCase{"PointAfterSeven", false, "1234567.5", 0, 2, ""},
                    TickCase{"PointAfterEight", false, "12345678.5", 0, 2, kRupees},
                    TickCase{"ThreePaiseDigits", false, "10.505", 0, 2, kPaise},
                    TickCase{"NotMultiple", false, "12", 5, 2, tickIs("5.00")},
                    TickCase{"Multiple", false, "15", 5, 2, ""},
                    TickCase{"PaiseNotMultiple", false, "15.50", 5, 2, tickIs("5.00")},
                    TickCase{"SubPaiseDropped", false, "15.001", 5, 3, ""},
                    TickCase{"NegativeTickSkips", false, "7.5", -3, 2, ""}));

INSTANTIATE_TEST_SUITE_P(
    Paise, PriceTick,
    testing::Values(TickCase{"EightDigits", true, "12345678", 5, 2, kRupees},
                    TickCase{"NotMultiple", true, "12.37", 5, 2, tickIs("0.05")},
                    TickCase{"Rupees", true, "12", 1000, 2, tickIs("10.00")},
                    TickCase{"PrintedBeforeRead", true, "1.15", 5, 2, ""},
                    // A leading point is read as whole rupees: ".5" counts as 500 paise.
                    TickCase{"LeadingPointAsRupees", true, ".5", 500, 2, ""},
                    TickCase{"LeadingPointNotMultiple", true, ".3", 500, 2, tickIs("5.00")},
                    TickCase{"LeadingPointNegativeTick", true, ".5", -7, 2, tickIs("-0.07")},
                    TickCase{"NegativeTickSkips", true, "0.5", -7, 2, ""},
                    TickCase{"TickShownForDecimals", true, "1.2345", 5, 4, tickIs("5.00")}));

}  // namespace
