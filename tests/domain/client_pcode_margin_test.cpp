#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <tuple>
#include <vector>

#include "domain/client_rules.h"

namespace {

using Words = std::vector<std::string>;

TEST(MarginChoices, ListsAndSelects) {
  using V = std::vector<std::string>;
  const V full = {"100% Margin"};
  const V both = {"100% Margin", "No Margin"};
  auto expect = [](const MarginChoices& c, const V& items, const std::string& selected) {
    EXPECT_EQ(c.items, items);
    EXPECT_EQ(c.selected, selected);
  };
  expect(nseMarginChoices("RS", "P1"), full, "100% Margin");
  expect(bseMarginChoices("Institutional", ""), both, "100% Margin");
  expect(bseMarginChoices("Non-institutional", "P1"), full, "100% Margin");
}

TEST(AccountPCode, DecidesOnChoosingTheAccount) {
  using V = AccountVerdict;
  const std::string noRetail = "Client with Pcode Cannot Place Retail Orders";
  // exchange, series, order type, pcode: verdict and message
  const std::vector<std::tuple<Words, V, std::string>> cases{
      {{"NSEIPO", "ES", "", "P1"}, V::Refuse, noRetail},
      {{"NSEIPO", "RS", "", ""}, V::Accept, ""},
      {{"BSEIPO", "NonRetail", "Institutional", "P1"}, V::Accept, ""},
      {{"BSEIPO", "RS", "Retail", "P1"}, V::Accept, ""}};  // an NSE series on BSE
  for (const auto& [w, verdict, text] : cases) {
    std::string message;
    EXPECT_EQ(checkAccountPCode(w[0], w[1], w[2], w[3], message), verdict) << w[1];
    EXPECT_EQ(message, text) << w[1];
  }
}

TEST(SubmitCheck, RefusesWithItsText) {
  using std::bind;
  using std::placeholders::_1;
  const std::string pCode = "Please enter an alphanumeric value for participant code.";
  const std::vector<std::pair<std::function<bool(std::string&)>, std::string>> cases{
      {bind(checkProMargin, "PRO", "", _1), ""},  // any other margin text is full margin
      {bind(checkProMargin, "CLI", "No Margin", _1), ""},
      {bind(checkCategorySet, "NSEIPO", "", _1), ""},
      {bind(checkWalkinCodes, "AB-1", "P-1", _1),
       "Please enter an alphanumeric value for Client Code."},
      {bind(checkWalkinCodes, "AB1", "P-1", _1), pCode},
      {bind(checkWalkinCodes, "AB1", "P 1", _1), pCode},
      {bind(checkPCodeOrderType, "", "Non-institutional", _1), ""}};
  for (size_t i = 0; i < cases.size(); ++i) {
    std::string message;
    EXPECT_EQ(cases[i].first(message), cases[i].second.empty()) << "row " << i;
    EXPECT_EQ(message, cases[i].second) << "row " << i;
  }
}

}  // namespace
