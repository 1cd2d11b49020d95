#include <gtest/gtest.h>

#include <functional>
#include <ostream>
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
  expect(bseMarginChoices("Institutional", ""), both, "100% Margin");
  expect(bseMarginChoices("Non-institutional", "P1"), full, "100% Margin");
}

struct AccountCase {
  std::string name;
  std::string exchange, series, orderType, pCode;
  AccountVerdict verdict;
  std::string message;
  friend void PrintTo(const AccountCase& c, std::ostream* os) { *os << c.name; }
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
    A{"NseNoPCode", "NSEIPO", "RS", "", "", V::Accept, ""},
    A{"BseInstitutional", "BSEIPO", "NonRetail", "Institutional", "P1", V::Accept, ""},
    A{"NseSeriesOnBse", "BSEIPO", "RS", "Retail", "P1", V::Accept, ""}));
// clang-format on

struct SubmitCase {
  std::string name;
  std::function<bool(std::string&)> check;
  std::string message;  // empty when the bid passes
  friend void PrintTo(const SubmitCase& c, std::ostream* os) { *os << c.name; }
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
const char kPCode[] = "Please enter an alphanumeric value for participant code.";

// clang-format off
INSTANTIATE_TEST_SUITE_P(Bids, SubmitCheck, testing::Values(
    S{"ProOtherMarginIsFull", bind(checkProMargin, "PRO", "", _1), ""},
    S{"ClientNoMargin", bind(checkProMargin, "CLI", "No Margin", _1), ""},
    S{"NseNoCategory", bind(checkCategorySet, "NSEIPO", "", _1), ""},
    S{"WalkinHyphen", bind(checkWalkinCodes, "AB-1", "P-1", _1),
      "Please enter an alphanumeric value for Client Code."},
    S{"WalkinPCodeHyphen", bind(checkWalkinCodes, "AB1", "P-1", _1), kPCode},
    S{"WalkinPCodeBlank", bind(checkWalkinCodes, "AB1", "P 1", _1), kPCode},
    S{"NoPCodeNonInstitutional", bind(checkPCodeOrderType, "", "Non-institutional", _1), ""}));
// clang-format on

}  // namespace
