#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "domain/prices.h"
#include "tests/support/recording_prompt.h"

namespace {

// Price, quantity and the first refusal shown (empty: the pair passes).
TEST(PriceAndQuantity, ShowsTheFirstRefusalOnly) {
  const std::string amount = "Amount Cannot exceed above 9999999";
  const std::vector<std::tuple<std::string, std::string, std::string>> cases{
      {"1a", "1.5", "Enter valid Quantity"},  // the quantity's point first
      {"100", "2147483648", " should not be more than integer max value(2147483647)"},
      {"1.2.", "5", "Please enter valid price "},
      // Without a point in the price, the quantity's length is what is limited.
      {"100", "12345678", amount},
      {"100.5", "2147483647", ""},
      {"12345678.5", "5", amount},
      {"1234567.5", "5", ""},
      {"12345678", "5", amount},
      {"1.12345678", "5", ""},
      {"1.123456789", "5", "Paise Part cannot Exceed above .99"}};
  for (const auto& [price, quantity, message] : cases) {
    RecordingPrompt prompt;
    EXPECT_EQ(checkPriceAndQuantity(prompt, price, quantity), message.empty() ? 1 : 0) << price;
    EXPECT_EQ(prompt.messages(), message.empty() ? Lines{} : Lines{message}) << price;
  }
}

}  // namespace
