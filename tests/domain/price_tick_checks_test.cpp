#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "domain/prices.h"

namespace {

std::string tickIs(const std::string& rupees) {
  return "Price should be multiple of Tick Size which is " + rupees + " rupees for this security";
}

// The first failing step decides the message; an empty message: the price passes.
TEST(PriceTick, FirstFailingStepDecides) {
  struct Case {
    bool tickInPaise;
    std::string price;
    int64_t tick;
    int32_t decimals;
    std::string message;
  };
  const std::string bad = "Please enter valid Price";
  const std::string rupees = "cannot have more than 7 digits in rupees part";
  const std::string paise = "Please enter the paise correctly";
  // clang-format off
  const std::vector<Case> cases{
      {false, "1.2.3", 0, 2, bad}, {false, "-5", 0, 2, bad},
      {false, "1234567x8", 0, 2, bad},  // a letter before the length
      {false, "1234567", 1, 2, ""}, {false, "12345678", 0, 2, rupees},
      {false, "1234567.5", 0, 2, ""}, {false, "12345678.5", 0, 2, rupees},
      {false, "10.505", 0, 2, paise}, {false, "12", 5, 2, tickIs("5.00")},
      {false, "15", 5, 2, ""}, {false, "15.50", 5, 2, tickIs("5.00")},
      {false, "15.001", 5, 3, ""},  // sub-paise digits are dropped
      {false, "7.5", -3, 2, ""},    // a negative tick skips the check
      {true, "12345678", 5, 2, rupees}, {true, "12.37", 5, 2, tickIs("0.05")},
      {true, "12", 1000, 2, tickIs("10.00")}, {true, "1.15", 5, 2, ""},
      // A leading point is read as whole rupees: ".5" counts as 500 paise.
      {true, ".5", 500, 2, ""}, {true, ".3", 500, 2, tickIs("5.00")},
      {true, ".5", -7, 2, tickIs("-0.07")}, {true, "0.5", -7, 2, ""},
      {true, "1.2345", 5, 4, tickIs("5.00")}};
  // clang-format on
  for (const Case& c : cases) {
    std::string message;
    int result = c.tickInPaise ? checkPriceTickPaise(c.price, message, c.tick, c.decimals)
                               : checkPriceTickRupees(c.price, message, c.tick, c.decimals);
    EXPECT_EQ(result, c.message.empty() ? 1 : 0) << c.price << " tick " << c.tick;
    EXPECT_EQ(message, c.message) << c.price << " tick " << c.tick;
  }
}

}  // namespace
