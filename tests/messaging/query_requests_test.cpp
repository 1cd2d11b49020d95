#include <gtest/gtest.h>

#include <functional>

#include "messaging/issue_admin_requests.h"
#include "messaging/query_requests.h"
#include "tests/support/test_channel.h"

namespace {

struct QueryCase {
  const char* name;
  std::function<void(MessageLayer&)> build;
  Lines expected;
  friend void PrintTo(const QueryCase& c, std::ostream* os) { *os << c.name; }
};

class QueryRequests : public testing::TestWithParam<QueryCase> {};

TEST_P(QueryRequests, SendExactFieldsThroughTheirControl) {
  TestChannel channel;
  GetParam().build(channel.layer);
  EXPECT_EQ(channel.transcript, GetParam().expected);
  EXPECT_TRUE(channel.prompt.messages().empty());
}

INSTANTIATE_TEST_SUITE_P(
    Builders, QueryRequests,
    testing::Values(
        QueryCase{"history",
                  [](auto& l) { requestOrderHistory(l, "17", "U9"); },
                  {"send 1 om_get_order_history_ofs 64001=\"17\" 31003=\"U9\""}},
        QueryCase{"filter",
                  [](auto& l) { requestOrderFilter(l, "17"); },
                  {"send 1 om_filter_order_ofs 64001=\"17\""}},
        QueryCase{"account",
                  [](auto& l) { requestAccountInfo(l, "A1", "BasketN"); },
                  {"send 1 om_get_acct_info 54001=\"A1\" 32760=\"BasketN\""}},
        QueryCase{"custodian",
                  [](auto& l) { requestBseCustodian(l, "A1", "Basket"); },
                  {"send 1 get_bse_custodian 54001=\"A1\" 32760=\"Basket\""}},
        QueryCase{"company_with_key",
                  [](auto& l) { requestCompanyIssue(l, "K", "I1"); },
                  {"send 1 get_company_ofs_issue 64926=\"K\" 63032=\"I1\" 63001=\"nse_ipo\""}},
        QueryCase{"company_without_key",
                  [](auto& l) { requestCompanyIssue(l, "", "I1"); },
                  {"send 1 get_company_ofs_issue 63032=\"I1\" 63001=\"nse_ipo\""}},
        QueryCase{"asset_nse",
                  [](auto& l) { requestAssetLtp(l, "nse_ipo", "ABC"); },
                  {"send 1 mrv_master 63001=\"nse_cm\" 10100=\"ABC\" 20003=\"6\" "
                   "20003=\"63050\" 32760=\"Asset LTP\""}},
        QueryCase{"asset_unknown_exchange",
                  [](auto& l) { requestAssetLtp(l, "nse_cm", "ABC"); },
                  {"send 1 mrv_master 63001=\"\" 10100=\"ABC\" 20003=\"6\" "
                   "20003=\"63050\" 32760=\"Asset LTP\""}}),
    [](const auto& info) { return info.param.name; });

struct IdentityCase {
  uint32_t loginKind;
  const char* expected;
  friend void PrintTo(const IdentityCase& c, std::ostream* os) {
    *os << "login kind " << c.loginKind;
  }
};

class BroadcastSubscription : public testing::TestWithParam<IdentityCase> {};

TEST_P(BroadcastSubscription, UsesTheIdentityOfTheLoginKind) {
  TestChannel channel;
  const std::array<std::string, 5> ids{"U1", "P1", "P2", "", ""};
  subscribeOrderBroadcasts(channel.layer, broadcastIdentity(GetParam().loginKind, ids), "nse_ipo");
  EXPECT_EQ(channel.transcript, (Lines{GetParam().expected}));
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, BroadcastSubscription,
    testing::Values(IdentityCase{0, "subscribe 3 64056=\"\" 63001=\"nse_ipo\" 64001=\"\""},
                    IdentityCase{1, "subscribe 3 64056=\"P1\" 63001=\"nse_ipo\" 64001=\"\""},
                    IdentityCase{77, "subscribe 3 31003=\"U1\" 63001=\"nse_ipo\" 64001=\"\""}));

}  // namespace
