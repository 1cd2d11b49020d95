#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "domain/client_rules.h"

namespace {

TEST(CategoryTable, FirstDisagreeingRowDecides) {
  const std::string ri = "Client Category should be RI if Cutoff is N and Series is Retail";
  // clang-format off
  const std::vector<std::pair<CategoryBid, std::string>> cases{
      {{"NSEIPO", "RS", "Retail", false, "RI"}, "Client Category Should not be there for NSEIPO"},
      {{"NSEIPO", "IS", "Institutional", false, ""}, ""},  // NSE skips the BSE rows
      {{"BSEIPO", "Retail", "Retail", true, "RI"},
       "Client Category should be RIC if Cutoff is Y and Series is Retail"},
      {{"BSEIPO", "Retail", "Retail", false, "RIC"}, ri},
      {{"BSEIPO", "Retail", "Non-institutional", false, "NII"}, ri},  // series before order type
      {{"BSEIPO", "Employee", "Retail", false, "RI"},
       "Client Category should be EMP if Series is Employee"},
      {{"BSEIPO", "NonRetail", "Non-institutional", false, "IC"},
       "Client Category should be NII if OrderType is Non-Institutional"},
      {{"BSEIPO", "NonRetail", "Institutional", false, "OTHS"}, ""},
      {{"BSEIPO", "NonRetail", "Institutional", false, "NII"},
       "Client Category should be IC,MF,or OTHS if OrderType is Institutional"}};
  // clang-format on
  for (size_t i = 0; i < cases.size(); ++i) {
    std::string message;
    EXPECT_EQ(checkClientCategory(cases[i].first, message), cases[i].second.empty()) << "row " << i;
    EXPECT_EQ(message, cases[i].second) << "row " << i;
  }
}

TEST(BseCategoryChoices, KeepsAgreeingEntriesInTheIssuesOrder) {
  using V = std::vector<std::string>;
  V issue = {"OTHS", "RI", "NII", "RIC", "EMP", "IC"};
  EXPECT_EQ(bseCategoryChoices(issue, "Institutional", "Retail", true),
            (V{"OTHS", "RI", "RIC", "EMP", "IC"}));
  EXPECT_EQ(bseCategoryChoices(issue, "Retail", "NonRetail", false), V{});
}

}  // namespace
