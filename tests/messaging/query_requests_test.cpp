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
        QueryCase{"issue_list",
                  [](auto& l) { requestIssueList(l, "bse_ipo"); },
                  {"send 2 om_get_ofs_issues 63001=\"bse_ipo\" 53065=\"A\""}},
        QueryCase{"order_book_refresh_c_then_f",
                  [](auto& l) { refreshOrderBook(l, "nse_ipo", "U1"); },
                  {"send 1 om_order_report_ofs 63059=\"C\" 63001=\"nse_ipo\" 54056=\"C\" "
                   "31003=\"U1\"",
                   "send 1 om_order_report_ofs 63059=\"F\" 63001=\"nse_ipo\" 54056=\"F\" "
                   "31003=\"U1\""}},
        QueryCase{"user_orders",
                  [](auto& l) { requestUserOrders(l, "bse_ipo", "U1"); },
                  {"send 1 om_get_user_order_ofs 63059=\"walkin\" 63001=\"bse_ipo\" "
                   "31003=\"U1\""}},
        QueryCase{"history",
                  [](auto& l) { requestOrderHistory(l, "17", "U9"); },
                  {"send 1 om_get_order_history_ofs 64001=\"17\" 31003=\"U9\""}},
        QueryCase{"filter",
                  [](auto& l) { requestOrderFilter(l, "17"); },
                  {"send 1 om_filter_order_ofs 64001=\"17\""}},
        QueryCase{
            "categories", [](auto& l) { requestCategories(l); }, {"send 2 om_get_ofs_category"}},
        QueryCase{"peer",
                  [](auto& l) { requestPeerData(l, "U1"); },
                  {"send 1 om_get_user_peer_data 31003=\"U1\""}},
        QueryCase{"account",
                  [](auto& l) { requestAccountInfo(l, "A1", "BasketN"); },
                  {"send 1 om_get_acct_info 54001=\"A1\" 32760=\"BasketN\""}},
        QueryCase{"custodian",
                  [](auto& l) { requestBseCustodian(l, "A1", "Basket"); },
                  {"send 1 get_bse_custodian 54001=\"A1\" 32760=\"Basket\""}},
        QueryCase{"company_with_key",
  friend void PrintTo(const IdentityCase& c, std::ostream* os) {
    *os << "login kind " << c.loginKind;
  }
                  [](auto& l) { requestCompanyIssue(l, "K", "I1"); },
                  {"send 1 get_company_ofs_issue 64926=\"K\" 63032=\"I1\" 63001=\"nse_ipo\""}},
        QueryCase{"company_without_key",
                  [](auto& l) { requestCompanyIssue(l, "", "I1"); },
                  {"send 1 get_company_ofs_issue 63032=\"I1\" 63001=\"nse_ipo\""}},
        QueryCase{"asset_nse",
                  [](auto& l) { requestAssetLtp(l, "nse_ipo", "ABC"); },
                  {"send 1 mrv_master 63001=\"nse_cm\" 10100=\"ABC\" 20003=\"6\" "
                   "20003=\"63050\" 32760=\"Asset LTP\""}},
        QueryCase{"asset_bse",
                  [](auto& l) { requestAssetLtp(l, "bse_ipo", "ABC"); },
                  {"send 1 mrv_master 63001=\"bse_cm\" 10100=\"ABC\" 20003=\"6\" "
                   "20003=\"63050\" 32760=\"Asset LTP\""}},
        QueryCase{"asset_unknown_exchange",
                  [](auto& l) { requestAssetLtp(l, "nse_cm", "ABC"); },
                  {"send 1 mrv_master 63001=\"\" 10100=\"ABC\" 20003=\"6\" "
                   "20003=\"63050\" 32760=\"Asset LTP\""}},
        QueryCase{"cancel_unallotted",
                  [](auto& l) { requestCancelUnallotted(l, "I7", "bse_ipo"); },
                  {"send 2 om_delete_unalloted_ofs_issue 63001=\"bse_ipo\" 3=\"I7\""}},
        QueryCase{"client_overview",
                  [](auto& l) { subscribeClientOverview(l, "C1"); },
                  {"subscribe 1 54001=\"C1\" 63001=\"nse_ipo\"",
                   "subscribe 1 54001=\"C1\" 63001=\"bse_ipo\""}},
        QueryCase{"market_price",
                  [](auto& l) { subscribeMarketPrice(l, "nse_ipo", "ABC-RS"); },
                  {"subscribe 5 63001=\"nse_ipo\" 10100=\"ABC-RS\""}}),
    [](const auto& info) { return info.param.name; });

struct IdentityCase {
  uint32_t loginKind;
  const char* expected;
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
                    IdentityCase{2, "subscribe 3 64053=\"P2\" 63001=\"nse_ipo\" 64001=\"\""},
                    IdentityCase{3, "subscribe 3 31003=\"U1\" 63001=\"nse_ipo\" 64001=\"\""},
                    IdentityCase{77, "subscribe 3 31003=\"U1\" 63001=\"nse_ipo\" 64001=\"\""}));

}  // namespace
