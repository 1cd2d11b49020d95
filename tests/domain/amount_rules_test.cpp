#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "domain/amount_rules.h"

namespace {

struct AmountCase {
  std::string name;
  std::string series, price, quantity;
  std::string message;  // empty when the amount is within the limits
  friend void PrintTo(const AmountCase& c, std::ostream* os) { *os << c.name; }
};
using A = AmountCase;

class BidAmountLimits : public testing::TestWithParam<AmountCase> {};

TEST_P(BidAmountLimits, ChecksTheSeriesGroupsLimit) {
  const AmountCase& c = GetParam();
  BidAmount bid{c.series, c.price, c.quantity, "101", "200000", "200000.00"};
  std::string message;
  EXPECT_EQ(checkBidAmount(bid, message), c.message.empty());
  EXPECT_EQ(message, c.message);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Bids, BidAmountLimits, testing::Values(
    A{"RetailAtLimit", "RS", "100", "2000", ""},
    A{"FractionTruncated", "Retail", "100.0004", "2000", ""},
    A{"WholeRupeeAbove", "Retail", "100.0005", "2000",
      "Amount cannot be greater than 200000 for Retail series orders"},
    A{"CutOffTakesBandTop", "Employee", "MKT", "1981",
      "Amount cannot be greater than 200000 for Employee series orders"},
    A{"NonRetailBelow", "IS", "99.99999", "2000",
      "Amount Should Exceed 200000.00 for IS series orders"},
    A{"NonRetailAtLimit", "NonRetail", "100", "2000", ""},
    A{"OtherSeriesUnlimited", "XX", "9999999", "999999999", ""}));
// clang-format on

struct RevisionCase {
  std::string name;
  Revision revision;
  std::string message;  // empty when the revision is allowed
  friend void PrintTo(const RevisionCase& c, std::ostream* os) { *os << c.name; }
};
using R = RevisionCase;

class NseRevision : public testing::TestWithParam<RevisionCase> {};

TEST_P(NseRevision, NoMarginInstitutionalOnlyUpwards) {
  std::string message;
  EXPECT_EQ(checkNseRevision(GetParam().revision, message), GetParam().message.empty());
  EXPECT_EQ(message, GetParam().message);
}

const char kPriceDown[] = "Price cannot be modified downwards";

// clang-format off
INSTANTIATE_TEST_SUITE_P(Orders, NseRevision, testing::Values(
    R{"PriceDown", {"nse_ipo", "IS", "No Margin", "12345", "100", "123.44", "100"}, kPriceDown},
    R{"Same", {"nse_ipo", "IS", "No Margin", "12345", "100", "123.45", "100"}, ""},
    R{"QuantityDown", {"nse_ipo", "IS", "No Margin", "12345", "100", "123.46", "99"},
      "Quantity cannot be modified downwards"},
    R{"PriceFirst", {"nse_ipo", "IS", "No Margin", "12345", "100", "1", "1"}, kPriceDown},
    R{"RetailSeries", {"nse_ipo", "RS", "No Margin", "12345", "100", "1", "1"}, ""},
    R{"FullMargin", {"nse_ipo", "IS", "100% Margin", "12345", "100", "1", "1"}, ""},
    R{"Bse", {"bse_ipo", "IS", "No Margin", "12345", "100", "1", "1"}, ""}));
// clang-format on

}  // namespace
