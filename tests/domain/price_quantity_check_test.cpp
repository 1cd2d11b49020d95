#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "domain/prices.h"
#include "tests/support/recording_prompt.h"

namespace {

struct PairCase {
  std::string name;
  std::string price;
  std::string quantity;
  std::string message;  // empty when the pair passes
  friend void PrintTo(const PairCase& c, std::ostream* os) { *os << c.name; }
};

const char kAmount[] = "Amount Cannot exceed above 9999999";

class PriceAndQuantity : public testing::TestWithParam<PairCase> {};

TEST_P(PriceAndQuantity, ShowsTheFirstRefusalOnly) {
  const PairCase& c = GetParam();
  RecordingPrompt prompt;
  EXPECT_EQ(checkPriceAndQuantity(prompt, c.price, c.quantity), c.message.empty() ? 1 : 0);
  EXPECT_EQ(prompt.messages(), c.message.empty() ? Lines{} : Lines{c.message});
}

INSTANTIATE_TEST_SUITE_P(
    Pairs, PriceAndQuantity,
    testing::Values(PairCase{"QuantityPointFirst", "1a", "1.5", "Enter valid Quantity"},
                    PairCase{"QuantityAboveIntMax", "100", "2147483648",
                             " should not be more than integer max value(2147483647)"},
                    PairCase{"PriceSecondPoint", "1.2.", "5", "Please enter valid price "},
                    // Without a point in the price, the quantity's length is what is limited.
                    PairCase{"LongQuantityWholePrice", "100", "12345678", kAmount},
                    PairCase{"LongQuantityPriceWithPoint", "100.5", "2147483647", ""},
                    PairCase{"PointAfterEight", "12345678.5", "5", kAmount},
                    PairCase{"PointAfterSeven", "1234567.5", "5", ""},
                    PairCase{"EightRupeeDigits", "12345678", "5", kAmount},
                    PairCase{"EightPaiseDigits", "1.12345678", "5", ""},
                    PairCase{"NinePaiseDigits", "1.123456789", "5",
                             "Paise Part cannot Exceed above .99"}));

}  // namespace
