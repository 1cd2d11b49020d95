#include <gtest/gtest.h>

#include <functional>

#include "messaging/issue_admin_requests.h"
#include "messaging/query_requests.h"
#include "tests/support/field_text.h"
#include "tests/support/test_channel.h"

namespace {

struct QueryCase {
  const char* name;
  std::function<void(MessageLayer&)> build;
  const char* head;
  const char* fields;
  friend void PrintTo(const QueryCase& c, std::ostream* os) { *os << c.name; }
};

class QueryRequests : public testing::TestWithParam<QueryCase> {};

TEST_P(QueryRequests, SendExactFieldsThroughTheirControl) {
  TestChannel channel;
  GetParam().build(channel.layer);
  EXPECT_EQ(channel.transcript, (Lines{wireLine(GetParam().head, GetParam().fields)}));
  EXPECT_TRUE(channel.prompt.messages().empty());
}

INSTANTIATE_TEST_SUITE_P(
    Builders, QueryRequests,
    testing::Values(
        QueryCase{"history", [](auto& l) { requestOrderHistory(l, "17", "U9"); },
                  "send 1 om_get_order_history_ofs", "64001=17 31003=U9"},
        QueryCase{"filter", [](auto& l) { requestOrderFilter(l, "17"); },
                  "send 1 om_filter_order_ofs", "64001=17"},
        QueryCase{"account", [](auto& l) { requestAccountInfo(l, "A1", "BasketN"); },
                  "send 1 om_get_acct_info", "54001=A1 32760=BasketN"},
        QueryCase{"custodian", [](auto& l) { requestBseCustodian(l, "A1", "Basket"); },
                  "send 1 get_bse_custodian", "54001=A1 32760=Basket"},
        QueryCase{"company_with_key", [](auto& l) { requestCompanyIssue(l, "K", "I1"); },
                  "send 1 get_company_ofs_issue", "64926=K 63032=I1 63001=nse_ipo"},
        QueryCase{"company_without_key", [](auto& l) { requestCompanyIssue(l, "", "I1"); },
                  "send 1 get_company_ofs_issue", "63032=I1 63001=nse_ipo"},
        QueryCase{"asset_unknown_exchange", [](auto& l) { requestAssetLtp(l, "nse_cm", "ABC"); },
                  "send 1 mrv_master", "63001= 10100=ABC 20003=6 20003=63050 32760=Asset LTP"},
        // Kinds 2 and 3 are the start-up scripts'.
        QueryCase{"broadcasts_login_kind_0",
                  [](auto& l) {
                    subscribeOrderBroadcasts(l, broadcastIdentity(0, {"U1", "P1", "P2"}), "x");
                  },
                  "subscribe 3", "64056= 63001=x 64001="},
        QueryCase{"broadcasts_login_kind_1",
                  [](auto& l) {
                    subscribeOrderBroadcasts(l, broadcastIdentity(1, {"U1", "P1", "P2"}), "x");
                  },
                  "subscribe 3", "64056=P1 63001=x 64001="}));

}  // namespace
