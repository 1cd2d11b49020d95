#include <gtest/gtest.h>

#include "messaging/order_fill.h"
#include "messaging/placed_order_fill.h"
#include "tests/support/field_text.h"
#include "tests/support/message_fixtures.h"
#include "tests/support/recording_prompt.h"

namespace {

sOFSOrderInfo refill(const FieldList& first, const FieldList& second) {
  sOFSOrderInfo order;
  for (const FieldList* fields : {&first, &second}) {
    auto message = makeMessage(*fields);
    fillReportedOrder(MessageView(connectvornOps(), message.get()), order);
  }
  return order;
}

struct WordCase {
  const char* name;
  const char* second;
  std::string sOFSOrderInfo::*member;
  std::string expected;
  friend void PrintTo(const WordCase& c, std::ostream* os) { *os << c.name; }
};

class OrderWords : public testing::TestWithParam<WordCase> {};

// A first report sets every converted field; the second one carries the case's fields.
TEST_P(OrderWords, SecondFillKeepsOrReplacesTheWord) {
  const FieldList first = fieldsOf("64001=17 12008=L 64170=YES 54056=C 63001=nse_ipo 10332=PC1");
  EXPECT_EQ(refill(first, fieldsOf(GetParam().second)).*GetParam().member, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    ReportedOrder, OrderWords,
    testing::Values(
        WordCase{"margin_no", "64170=NO", &sOFSOrderInfo::margin, "No Margin"},
        WordCase{"margin_other_keeps", "64170=yes", &sOFSOrderInfo::margin, "100% Margin"},
        WordCase{"margin_absent_keeps", "", &sOFSOrderInfo::margin, "100% Margin"},
        WordCase{"price_type_mkt", "12008=MKT", &sOFSOrderInfo::priceType, "MKT"},
        WordCase{"price_type_other_keeps", "12008=X", &sOFSOrderInfo::priceType, "L"},
        WordCase{"pro_cli_f", "54056=F", &sOFSOrderInfo::proCliFlag, "F"},
        WordCase{"pro_cli_other_keeps", "54056=P", &sOFSOrderInfo::proCliFlag, "C"},
        WordCase{"bse_pcode_from_13034", "63001=bse_ipo 10332=NSEPC 13034=BSEPC",
                 &sOFSOrderInfo::pCode, "BSEPC"},
        WordCase{"nse_pcode_from_10332", "63001=nse_ipo 10332=NSEPC 13034=BSEPC",
                 &sOFSOrderInfo::pCode, "NSEPC"},
        WordCase{"63058_over_12005", "63058=B 12005=A", &sOFSOrderInfo::field12005, "B"},
        WordCase{"absent_text_field_empties", "", &sOFSOrderInfo::pCode, ""}));

TEST(PlacedOrderFill, BseOrderTakesPCodeFrom64739AndMarketPriceFromTheTag) {
  auto message = makeMessage(
      fieldsOf("54001=A1 63100=I1 10306=12345 32760=MKT 63001=bse_ipo 10332=NSEPC 64739=BSEPC "
               "64170=NO"));
  sOFSOrderInfo order;
  fillPlacedOrder(MessageView(connectvornOps(), message.get()), order);
  EXPECT_EQ((Lines{order.pCode, order.price, order.margin}), (Lines{"BSEPC", "MKT", "No Margin"}));
}

}  // namespace
