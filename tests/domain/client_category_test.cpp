#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "domain/client_rules.h"

namespace {

struct CategoryCase {
  std::string name;
  CategoryBid bid;
  std::string message;  // empty when the category agrees
  friend void PrintTo(const CategoryCase& c, std::ostream* os) { *os << c.name; }
};
using C = CategoryCase;

const char kRi[] = "Client Category should be RI if Cutoff is N and Series is Retail";
const char kInst[] = "Client Category should be IC,MF,or OTHS if OrderType is Institutional";

class CategoryTable : public testing::TestWithParam<CategoryCase> {};

TEST_P(CategoryTable, FirstDisagreeingRowDecides) {
  std::string message;
  EXPECT_EQ(checkClientCategory(GetParam().bid, message), GetParam().message.empty());
  EXPECT_EQ(message, GetParam().message);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Bids, CategoryTable, testing::Values(
    C{"Nse", {"NSEIPO", "RS", "Retail", false, "RI"}, "Client Category Should not be there for NSEIPO"},
    C{"NseSkipsBseRows", {"NSEIPO", "IS", "Institutional", false, ""}, ""},
    C{"RetailCutOff", {"BSEIPO", "Retail", "Retail", true, "RI"},
      "Client Category should be RIC if Cutoff is Y and Series is Retail"},
    C{"RetailPriced", {"BSEIPO", "Retail", "Retail", false, "RIC"}, kRi},
    C{"SeriesBeforeOrderType", {"BSEIPO", "Retail", "Non-institutional", false, "NII"}, kRi},
    C{"Employee", {"BSEIPO", "Employee", "Retail", false, "RI"},
      "Client Category should be EMP if Series is Employee"},
    C{"NonInstitutional", {"BSEIPO", "NonRetail", "Non-institutional", false, "IC"},
      "Client Category should be NII if OrderType is Non-Institutional"},
    C{"InstitutionalOths", {"BSEIPO", "NonRetail", "Institutional", false, "OTHS"}, ""},
    C{"InstitutionalNii", {"BSEIPO", "NonRetail", "Institutional", false, "NII"}, kInst}));
// clang-format on

TEST(BseCategoryChoices, KeepsAgreeingEntriesInTheIssuesOrder) {
  using V = std::vector<std::string>;
  V issue = {"OTHS", "RI", "NII", "RIC", "EMP", "IC"};
  EXPECT_EQ(bseCategoryChoices(issue, "Institutional", "Retail", true),
            (V{"OTHS", "RI", "RIC", "EMP", "IC"}));
  EXPECT_EQ(bseCategoryChoices(issue, "Retail", "NonRetail", false), V{});
}

}  // namespace
