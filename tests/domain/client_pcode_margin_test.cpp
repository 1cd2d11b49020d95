#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "domain/client_rules.h"

namespace {

TEST(MarginChoices, ListsAndSelects) {
  using V = std::vector<std::string>;
  const V full = {"100% Margin"};
  const V both = {"100% Margin", "No Margin"};
  auto expect = [](const MarginChoices& c, const V& items, const std::string& selected) {
    EXPECT_EQ(c.items, items);
    EXPECT_EQ(c.selected, selected);
  };
  expect(nseMarginChoices("RS", "P1"), full, "100% Margin");
  expect(nseMarginChoices("IS", "P1"), both, "No Margin");
  expect(nseMarginChoices("IS", ""), full, "100% Margin");
  expect(bseMarginChoices("Institutional", ""), both, "100% Margin");
  expect(bseMarginChoices("Institutional", "P1"), both, "No Margin");
  expect(bseMarginChoices("Non-institutional", "P1"), full, "100% Margin");
}

struct AccountCase {
  std::string name;
  std::string exchange, series, orderType, pCode;
  AccountVerdict verdict;
  std::string message;
};
using A = AccountCase;
using V = AccountVerdict;

const char kNoRetail[] = "Client with Pcode Cannot Place Retail Orders";

class AccountPCode : public testing::TestWithParam<AccountCase> {};

TEST_P(AccountPCode, DecidesOnChoosingTheAccount) {
  const AccountCase& c = GetParam();
  std::string message;
  EXPECT_EQ(checkAccountPCode(c.exchange, c.series, c.orderType, c.pCode, message), c.verdict);
  EXPECT_EQ(message, c.message);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Accounts, AccountPCode, testing::Values(
    A{"NseEmployee", "NSEIPO", "ES", "", "P1", V::Refuse, kNoRetail},
    A{"NseInstitutional", "NSEIPO", "IS", "", "P1", V::Accept, ""},
    A{"NseNoPCode", "NSEIPO", "RS", "", "", V::Accept, ""},
    A{"BseEmployee", "BSEIPO", "Employee", "Retail", "P1", V::Refuse, kNoRetail},
    A{"BseNonInstitutional", "BSEIPO", "NonRetail", "Non-institutional", "P1",
      V::ResetToInstitutional, "Client with Pcode cannot place order in Non-institutional "
      "Order. Order Type is reset to Institutional"},
    A{"BseInstitutional", "BSEIPO", "NonRetail", "Institutional", "P1", V::Accept, ""},
    A{"NseSeriesOnBse", "BSEIPO", "RS", "Retail", "P1", V::Accept, ""}),
    [](const auto& info) { return info.param.name; });
// clang-format on

struct SubmitCase {
  std::string name;
  std::function<bool(std::string&)> check;
  std::string message;  // empty when the bid passes
};
using S = SubmitCase;

class SubmitCheck : public testing::TestWithParam<SubmitCase> {};

TEST_P(SubmitCheck, RefusesWithItsText) {
  std::string message;
  EXPECT_EQ(GetParam().check(message), GetParam().message.empty());
  EXPECT_EQ(message, GetParam().message);
}

using std::bind;
using std::placeholders::_1;
const char kSelect[] = "Please select AccountId";
const char kPCode[] = "Please enter an alphanumeric value for participant code.";

// clang-format off
INSTANTIATE_TEST_SUITE_P(Bids, SubmitCheck, testing::Values(
    S{"ProNoMargin", bind(checkProMargin, "PRO", "No Margin", _1),
      "Margin Indicator should be set as 100% for PRO order"},
    S{"ProOtherMarginIsFull", bind(checkProMargin, "PRO", "", _1), ""},
    S{"ClientNoMargin", bind(checkProMargin, "CLI", "No Margin", _1), ""},
    S{"BseNoCategory", bind(checkCategorySet, "BSEIPO", "", _1),
      "client category is not set for the selected AccountID"},
    S{"NseNoCategory", bind(checkCategorySet, "NSEIPO", "", _1), ""},
    S{"WalkinNoCode", bind(checkWalkinCodes, "", "P-1", _1), kSelect},
    S{"WalkinHyphen", bind(checkWalkinCodes, "AB-1", "P-1", _1),
      "Please enter an alphanumeric value for Client Code."},
    S{"WalkinPCodeHyphen", bind(checkWalkinCodes, "AB1", "P-1", _1), kPCode},
    S{"WalkinPCodeBlank", bind(checkWalkinCodes, "AB1", "P 1", _1), kPCode},
    S{"OrdinaryEmpty", bind(checkOrdinaryAccount, "", true, _1), kSelect},
    S{"OrdinaryUnknown", bind(checkOrdinaryAccount, "A9", false, _1), kSelect},
    S{"PCodeNonInstitutional", bind(checkPCodeOrderType, "P1", "Non-institutional", _1),
      "Client with Pcode cannot place order in Non-institutional Order."},
    S{"NoPCodeNonInstitutional", bind(checkPCodeOrderType, "", "Non-institutional", _1), ""}),
    [](const auto& info) { return info.param.name; });
// clang-format on

}  // namespace
