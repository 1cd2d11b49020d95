#include <gtest/gtest.h>

#include "host/sim/sim_dates.h"
#include "tests/host_sim/sim_fixture.h"

namespace simtest {
namespace {

TEST(IssueList, SendsTheExchangesIssuesWithDatesFromTodayThenTheEnd) {
  SimFixture f;
  EXPECT_EQ(describe(f, f.ask("om_get_ofs_issues", fieldsOf("63001=bse_ipo 53065=A")),
                     {63032, 49165, 79, 10100, 32766}),
            (Lines{"reply asker om_get_ofs_issues 63032=B1 49165=21/11/2026 79=21/11/2026 "
                   "10100=XYZ-Retail",
                   "reply asker om_get_ofs_issues 63032=B2 49165=21/11/2026 79=21/11/2026 "
                   "10100=XYZ-NonRetail",
                   "reply asker om_get_ofs_issues 32766="}));
}

TEST(MalformedRequest, GetsOnlyAnErrorEnd) {
  const struct {
    const char *message, *request, *error;
  } cases[] = {
      {"om_get_everything", "", "E100 32766=Unknown request om_get_everything"},
      {"om_get_ofs_issues", "53065=A", "E101 32766=Field 63001 is missing"},
      {"om_get_ofs_issues", "63001=nse_cm", "E102 32766=Field 63001 has a bad value: nse_cm"},
      {"om_order_report_ofs", "63059=X 63001=nse_ipo 31003=U1",
       "E102 32766=Field 63059 has a bad value: X"},
      {"om_get_acct_info", "32760=", "E101 32766=Field 54001 is missing"},
      {"om_put_order_ofs", "63001=nse_ipo 31003=U1 54001=A1 63100=N1 12004=0 12008=L 10306=100",
       "E102 32766=Field 12004 has a bad value: 0"},
      {"om_put_order_ofs", "63001=nse_ipo 31003=U1 54001=A1 63100=N1 12004=10 12008=L 10306=101.50",
       "E102 32766=Field 10306 has a bad value: 101.50"},
      {"om_put_order_walkin", "63001=nse_ipo 31003=U1 63100=N1 12004=10 12008=L 10306=10100",
       "E101 32766=Field 64916 is missing"},
      {"om_modify_order_ofs", "12004=10 10306=10100", "E101 32766=Field 64001 is missing"},
      {"mrv_master", "63001=nse_cm", "E101 32766=Field 10100 is missing"},
      {"om_add_ofs_issue", "63001=nse_ipo", "E101 32766=Field 10100 is missing"}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.error);
    SimFixture f;
    f.subscribeListeners();
    EXPECT_EQ(describe(f, f.ask(c.message, fieldsOf(c.request)), {32766}),
              (Lines{"reply asker " + std::string(c.message) + " 32766=" + c.error}));
  }
}

TEST(Replies, EchoEveryTagOnEveryMessage) {
  SimFixture f;
  EXPECT_EQ(describe(f, f.ask("om_get_acct_info", fieldsOf("54001=A1 32760=BasketN")),
                     {54001, 10332, 13034, 54002, 32766, 32760}),
            (Lines{"reply asker om_get_acct_info 54001=A1 10332=PC1 13034=CU1 54002=Asha Rao "
                   "32760=BasketN",
                   "reply asker om_get_acct_info 32766= 32760=BasketN"}));
  EXPECT_EQ(
      describe(f, f.ask("get_bse_custodian", fieldsOf("54001=ZZ 32760=Basket")), {32766, 32760}),
      (Lines{"reply asker get_bse_custodian 32766=E202 32766=Account ZZ is not known "
             "32760=Basket"}));
}

TEST(OrderReport, ListsTheUsersOrdersOfOneKindOnOneExchange) {
  const struct {
    const char *message, *request;
    Lines orders;
  } cases[] = {{"om_order_report_ofs", "63059=C 63001=nse_ipo 54056=C 31003=U1", {"501", "504"}},
               {"om_order_report_ofs", "63059=F 63001=nse_ipo 54056=F 31003=U1", {"502"}},
               {"om_order_report_ofs", "63059=C 63001=bse_ipo 54056=C 31003=U1", {"505", "507"}},
               {"om_order_report_ofs", "63059=C 63001=nse_ipo 54056=C 31003=U2", {"506"}},
               {"om_get_user_order_ofs", "63059=walkin 63001=nse_ipo 31003=U1", {"503"}}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.request);
    SimFixture f;
    const std::string reply = "reply asker " + std::string(c.message);
    Lines expected;
    for (const std::string& number : c.orders) expected.push_back(reply + " 64001=" + number);
    expected.push_back(reply);
    EXPECT_EQ(describe(f, f.ask(c.message, fieldsOf(c.request)), {64001}), expected);
  }
}

TEST(Lookups, CategoriesPeerDataAndCompanyIssue) {
  SimFixture f;
  EXPECT_EQ(describe(f, f.ask("om_get_ofs_category", {}), {10610, 13034}),
            (Lines{"reply asker om_get_ofs_category 10610=Retail 13034=RI",
                   "reply asker om_get_ofs_category 10610=Retail 13034=RIC",
                   "reply asker om_get_ofs_category"}));
  EXPECT_EQ(
      describe(f, f.ask("om_get_user_peer_data", {{31003, "U1"}}), {28561}),
      (Lines{"reply asker om_get_user_peer_data 28561=PEER", "reply asker om_get_user_peer_data"}));
  // The summary's tick is read as a whole number: paise. Its minimum is occurrence 1 of 55.
  EXPECT_EQ(describe(f, f.ask("get_company_ofs_issue", {{63032, "N1"}, {63001, "nse_ipo"}}),
                     {63032, 63005, 55, 10027}),
            (Lines{"reply asker get_company_ofs_issue 63032=N1 63005=5 55=10 55=10 10027=5",
                   "reply asker get_company_ofs_issue"}));
}

// The price itself, in units of its decimals, is the sim watch script's underlying column.
TEST(MarketData, NoPriceForAnUnknownAsset) {
  SimFixture f;
  EXPECT_EQ(
      describe(f, f.ask("mrv_master", fieldsOf("63001=bse_cm 10100=ABC 32760=Asset LTP")), {32766}),
      (Lines{"reply asker mrv_master 32766=E211 32766=No market data for bse_cm ABC"}));
}

TEST(MarketData, DepthGroupsTheOpenLimitBidsBestFirst) {
  SimFixture f;
  // Open bids on N1: 501 10 @ 101.00, 502 20 @ 102.00, 503 15 at cut-off, 506 10 @ 103.00;
  // 504 is cancelled.
  const auto out = f.ask("mrv_master", fieldsOf("63001=nse_ipo 10100=ABC-RS"));
  EXPECT_EQ(
      describe(f, out, {55000, 55500, 56000, 55001, 55501, 55002, 55502, 55003, 55503, 54283}),
      (Lines{"reply asker mrv_master 55000=10300 55500=10 56000=1 55001=10200 55501=20 "
             "55002=10100 55502=10 55003=0 55503=0 54283=55",
             "reply asker mrv_master"}));
  EXPECT_EQ(value(out[0], 63080), sim::timeText(fixedClock()));
}

}  // namespace
}  // namespace simtest
