#include <gtest/gtest.h>

#include "host/sim/sim_dates.h"
#include "tests/host_sim/sim_fixture.h"

namespace simtest {
namespace {

std::string day(int offset) {
  return sim::dayText(sim::localDay(fixedClock()) + offset);
}

TEST(IssueList, SendsTheExchangesIssuesWithDatesFromTodayThenTheEnd) {
  SimFixture f;
  EXPECT_EQ(describe(f, f.ask("om_get_ofs_issues", {{63001, "bse_ipo"}, {53065, "A"}}),
                     {63032, 49165, 79, 10100, 32766}),
            (Lines{"reply asker om_get_ofs_issues 63032=B1 49165=" + day(0) + " 79=" + day(0) +
                       " 10100=XYZ-Retail",
                   "reply asker om_get_ofs_issues 63032=B2 49165=" + day(0) + " 79=" + day(0) +
                       " 10100=XYZ-NonRetail",
                   "reply asker om_get_ofs_issues 32766="}));
  EXPECT_EQ(day(0), "21/11/2026");
}

struct MalformedCase {
  const char* name;
  const char* message;
  const char* request;
  const char* code;
  const char* text;
  friend void PrintTo(const MalformedCase& c, std::ostream* os) { *os << c.name; }
};

class MalformedRequest : public testing::TestWithParam<MalformedCase> {};

TEST_P(MalformedRequest, GetsOnlyAnErrorEnd) {
  SimFixture f;
  f.subscribeListeners();
  EXPECT_EQ(describe(f, f.ask(GetParam().message, fieldsOf(GetParam().request)), {32766}),
            (Lines{"reply asker " + std::string(GetParam().message) + " 32766=" + GetParam().code +
                   " 32766=" + GetParam().text}));
}

INSTANTIATE_TEST_SUITE_P(
    Exchange, MalformedRequest,
    testing::Values(
        MalformedCase{"unknown_name", "om_get_everything", "", "E100",
                      "Unknown request om_get_everything"},
        MalformedCase{"issues_without_exchange", "om_get_ofs_issues", "53065=A", "E101",
                      "Field 63001 is missing"},
        MalformedCase{"issues_of_a_cash_segment", "om_get_ofs_issues", "63001=nse_cm", "E102",
                      "Field 63001 has a bad value: nse_cm"},
        MalformedCase{"order_report_half_unknown", "om_order_report_ofs",
                      "63059=X 63001=nse_ipo 31003=U1", "E102", "Field 63059 has a bad value: X"},
        MalformedCase{"account_info_without_account", "om_get_acct_info", "32760=", "E101",
                      "Field 54001 is missing"},
        MalformedCase{"placement_of_zero", "om_put_order_ofs",
                      "63001=nse_ipo 31003=U1 54001=A1 63100=N1 12004=0 12008=L 10306=100", "E102",
                      "Field 12004 has a bad value: 0"},
        MalformedCase{"placement_price_in_rupees", "om_put_order_ofs",
                      "63001=nse_ipo 31003=U1 54001=A1 63100=N1 12004=10 12008=L 10306=101.50",
                      "E102", "Field 10306 has a bad value: 101.50"},
        MalformedCase{"walkin_placement_without_client", "om_put_order_walkin",
                      "63001=nse_ipo 31003=U1 63100=N1 12004=10 12008=L 10306=10100", "E101",
                      "Field 64916 is missing"},
        MalformedCase{"modify_without_order", "om_modify_order_ofs", "12004=10 10306=10100", "E101",
                      "Field 64001 is missing"},
        MalformedCase{"market_data_without_symbol", "mrv_master", "63001=nse_cm", "E101",
                      "Field 10100 is missing"},
        MalformedCase{"add_issue_without_symbol", "om_add_ofs_issue", "63001=nse_ipo", "E101",
                      "Field 10100 is missing"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(Replies, EchoEveryTagOnEveryMessage) {
  SimFixture f;
  EXPECT_EQ(describe(f, f.ask("om_get_acct_info", {{54001, "A1"}, {32760, "BasketN"}}),
                     {54001, 10332, 13034, 54002, 32766, 32760}),
            (Lines{"reply asker om_get_acct_info 54001=A1 10332=PC1 13034=CU1 54002=Asha Rao "
                   "32760=BasketN",
                   "reply asker om_get_acct_info 32766= 32760=BasketN"}));
  EXPECT_EQ(
      describe(f, f.ask("get_bse_custodian", {{54001, "ZZ"}, {32760, "Basket"}}), {32766, 32760}),
      (Lines{"reply asker get_bse_custodian 32766=E202 32766=Account ZZ is not known "
             "32760=Basket"}));
}

struct ReportCase {
  const char* name;
  const char* message;
  const char* request;
  Lines orders;
  friend void PrintTo(const ReportCase& c, std::ostream* os) { *os << c.name; }
};

class OrderReport : public testing::TestWithParam<ReportCase> {};

TEST_P(OrderReport, ListsTheUsersOrdersOfOneKindOnOneExchange) {
  SimFixture f;
  Lines expected;
  for (const std::string& number : GetParam().orders)
    expected.push_back("reply asker " + std::string(GetParam().message) + " 64001=" + number);
  expected.push_back("reply asker " + std::string(GetParam().message));
  EXPECT_EQ(describe(f, f.ask(GetParam().message, fieldsOf(GetParam().request)), {64001}),
            expected);
}

INSTANTIATE_TEST_SUITE_P(Exchange, OrderReport,
                         testing::Values(ReportCase{"client_half",
                                                    "om_order_report_ofs",
                                                    "63059=C 63001=nse_ipo 54056=C 31003=U1",
                                                    {"501", "504"}},
                                         ReportCase{"pro_half",
                                                    "om_order_report_ofs",
                                                    "63059=F 63001=nse_ipo 54056=F 31003=U1",
                                                    {"502"}},
                                         ReportCase{"other_exchange",
                                                    "om_order_report_ofs",
                                                    "63059=C 63001=bse_ipo 54056=C 31003=U1",
                                                    {"505", "507"}},
                                         ReportCase{"other_user",
                                                    "om_order_report_ofs",
                                                    "63059=C 63001=nse_ipo 54056=C 31003=U2",
                                                    {"506"}},
                                         ReportCase{"walkin_orders",
                                                    "om_get_user_order_ofs",
                                                    "63059=walkin 63001=nse_ipo 31003=U1",
                                                    {"503"}}),
                         [](const auto& info) { return std::string(info.param.name); });

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

TEST(MarketData, AssetPriceInUnitsOfItsDecimals) {
  SimFixture f;
  const FieldList asset{
      {63001, "nse_cm"}, {10100, "ABC"}, {20003, "6"}, {20003, "63050"}, {32760, "Asset LTP"}};
  EXPECT_EQ(describe(f, f.ask("mrv_master", asset), {63001, 10100, 6, 63050, 32766, 32760}),
            (Lines{"reply asker mrv_master 63001=nse_cm 10100=ABC 6=24530 63050=2 "
                   "32760=Asset LTP",
                   "reply asker mrv_master 32766= 32760=Asset LTP"}));
  EXPECT_EQ(
      describe(f, f.ask("mrv_master", {{63001, "bse_cm"}, {10100, "ABC"}, {32760, "Asset LTP"}}),
               {32766}),
      (Lines{"reply asker mrv_master 32766=E211 32766=No market data for bse_cm ABC"}));
}

TEST(MarketData, DepthGroupsTheOpenLimitBidsBestFirst) {
  SimFixture f;
  // Open bids on N1: 501 10 @ 101.00, 502 20 @ 102.00, 503 15 at cut-off, 506 10 @ 103.00;
  // 504 is cancelled.
  const auto out = f.ask("mrv_master", {{63001, "nse_ipo"}, {10100, "ABC-RS"}});
  EXPECT_EQ(
      describe(f, out, {55000, 55500, 56000, 55001, 55501, 55002, 55502, 55003, 55503, 54283}),
      (Lines{"reply asker mrv_master 55000=10300 55500=10 56000=1 55001=10200 55501=20 "
             "55002=10100 55502=10 55003=0 55503=0 54283=55",
             "reply asker mrv_master"}));
  EXPECT_EQ(value(out[0], 63080), sim::timeText(fixedClock()));
}

}  // namespace
}  // namespace simtest
