#include <gtest/gtest.h>

#include "tests/support/recording_dispatch_context.h"

#include "tests/support/field_text.h"

namespace {

struct LogCase {
  const char* name;
  const char* row;
  Lines events;
  friend void PrintTo(const LogCase& c, std::ostream* os) { *os << c.name; }
};

class OrderAnswerLogs : public testing::TestWithParam<LogCase> {};

TEST_P(OrderAnswerLogs, WriteTheExactLine) {
  RecordingDispatchContext context;
  context.respond({{32767, "get_company_ofs_issue"}, {63032, "I1"}});
  context.respond(fieldsOf(GetParam().row));
  EXPECT_EQ(context.events, GetParam().events);
}

INSTANTIATE_TEST_SUITE_P(
    Answers, OrderAnswerLogs,
    testing::Values(
        LogCase{"nse_placement",
                "32767=om_put_order_ofs 54001=A1 63100=I1 12004=10 64001=17 10306=12345 "
                "63001=nse_ipo 10332=PC1",
                {"log  OFS Order Placed -- Exchange : NSE_IPO Client ID : A1 Issue ID : I1 "
                 "Quantity : 10 Price : 123.45 PCode : PC1 "}},
        LogCase{"bse_placement_still_says_nse",
                "32767=om_put_order_ofs 54001=A1 63100=I1 12004=10 64001=17 32760=MKT 10306=100 "
                "63001=bse_ipo 10332=PC1 64739=BPC",
                {"log  OFS Order Placed -- Exchange : NSE_IPO Client ID : A1 Issue ID : I1 "
                 "Quantity : 10 Price : MKT PCode : BPC "}},
        LogCase{"empty_pcode_shows_default",
                "32767=om_put_order_ofs 63100=I1 64001=17 10306=5",
                {"log  OFS Order Placed -- Exchange : NSE_IPO Client ID :  Issue ID : I1 "
                 "Quantity :  Price : 0.05 PCode : DEFPC "}},
        LogCase{"walkin_placement",
                "32767=om_put_order_walkin 64916=W1 63100=I1 12004=3 64001=18 10306=250 "
                "63001=bse_ipo 10332=PC2",
                {"log  OFS Order Placed -- Exchange :  NSE_IPO Issue ID : I1 Walkin Client ID: "
                 "W1 Quantity : 3 Price : 2.50 PCode : PC2 "}},
        LogCase{
            "placement_for_unknown_issue_dropped", "32767=om_put_order_ofs 63100=I2 64001=17", {}},
        LogCase{"bse_modification_says_bseipo",
                "32767=om_modify_order_ofs 64001=17 63100=I1 10306=10000 12004=4 54001=A1 "
                "63001=bse_ipo 64739=BPC",
                {"log Order modified for Exchange : BSEIPO Client ID : A1 Issue ID : I1 "
                 "Quantity : 4 Price : 100.00 PCode : BPC "}},
        LogCase{"walkin_modification_says_nse_ipo",
                "32767=om_modify_order_walkin 64001=18 63100=I1 32760=MKT 12004=4 64916=W1 "
                "63001=bse_ipo 10332=PC2",
                {"log Order modified for Exchange : NSE_IPO Walkin Client ID : W1 Issue ID : I1 "
                 "Quantity : 4 Price : MKT PCode : PC2 "}},
        LogCase{"modification_without_issue_dropped",
                "32767=om_modify_order_ofs 64001=17 63001=bse_ipo",
                {}}));

TEST(PlacedOrders, KeptOnceWithTheIssueNumbers) {
  RecordingDispatchContext context;
  context.respond(fieldsOf("32767=get_company_ofs_issue 63032=I1 63005=5 55=1 55=10 10027=25"));
  FieldList row = fieldsOf("32767=om_put_order_ofs 63100=I1 64001=17 12004=10");
  context.respond(row);
  row[3].second = "99";
  context.respond(row);
  EXPECT_EQ(context.store.placedOrderNumbers, (std::vector<std::string>{"17"}));
  const sOFSOrderInfo& placed = *context.store.placedOrders["17"];
  EXPECT_EQ((Lines{placed.quantity, std::to_string(placed.issueTickSize),
                   std::to_string(placed.issueMinQuantity), std::to_string(placed.issueLotSize)}),
            (Lines{"10", "5", "10", "25"}));
}

}  // namespace
