#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "domain/amount_rules.h"

namespace {

TEST(BidAmountLimits, ChecksTheSeriesGroupsLimit) {
  struct Case {
    std::string series, price, quantity;
    std::string message;  // empty when the amount is within the limits
  };
  // clang-format off
  const std::vector<Case> cases{
      {"RS", "100", "2000", ""},
      {"Retail", "100.0004", "2000", ""},  // the fraction is truncated
      {"Retail", "100.0005", "2000", "Amount cannot be greater than 200000 for Retail series orders"},
      {"Employee", "MKT", "1981", "Amount cannot be greater than 200000 for Employee series orders"},
      {"IS", "99.99999", "2000", "Amount Should Exceed 200000.00 for IS series orders"},
      {"NonRetail", "100", "2000", ""},
      {"XX", "9999999", "999999999", ""}};  // other series are unlimited
  // clang-format on
  for (const Case& c : cases) {
    BidAmount bid{c.series, c.price, c.quantity, "101", "200000", "200000.00"};
    std::string message;
    EXPECT_EQ(checkBidAmount(bid, message), c.message.empty()) << c.series << " " << c.price;
    EXPECT_EQ(message, c.message) << c.series << " " << c.price;
  }
}

TEST(NseRevision, NoMarginInstitutionalOnlyUpwards) {
  const std::string priceDown = "Price cannot be modified downwards";
  // clang-format off
  const std::vector<std::pair<Revision, std::string>> cases{
      {{"nse_ipo", "IS", "No Margin", "12345", "100", "123.44", "100"}, priceDown},
      {{"nse_ipo", "IS", "No Margin", "12345", "100", "123.45", "100"}, ""},
      {{"nse_ipo", "IS", "No Margin", "12345", "100", "123.46", "99"},
       "Quantity cannot be modified downwards"},
      {{"nse_ipo", "IS", "No Margin", "12345", "100", "1", "1"}, priceDown},  // price first
      {{"nse_ipo", "RS", "No Margin", "12345", "100", "1", "1"}, ""},
      {{"nse_ipo", "IS", "100% Margin", "12345", "100", "1", "1"}, ""},
      {{"bse_ipo", "IS", "No Margin", "12345", "100", "1", "1"}, ""}};
  // clang-format on
  for (size_t i = 0; i < cases.size(); ++i) {
    std::string message;
    EXPECT_EQ(checkNseRevision(cases[i].first, message), cases[i].second.empty()) << "row " << i;
    EXPECT_EQ(message, cases[i].second) << "row " << i;
  }
}

}  // namespace
