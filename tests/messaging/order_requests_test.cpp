#include "messaging/order_requests.h"

#include <gtest/gtest.h>

#include <functional>

#include "tests/support/test_channel.h"

namespace {

int fakeUuid(std::string& out) {
  out = "G1";
  return 1;
}

sOFSPlaceOrder bid() {
  sOFSPlaceOrder o;
  o.issueId = "I1";
  o.clientId = "A1";
  o.price = "123.45";
  o.quantity = "10";
  o.proCli = "CLI";
  o.priceType = "L";
  o.screenName = "NSEIPO";
  o.walkinClientId = "W1";
  o.reference = "R1";
  return o;
}

sOFSPlaceOrder fullBid() {
  sOFSPlaceOrder o = bid();
  o.category = "RI";
  o.pCode = "PC1";
  o.side = "S";
  o.proCli = "PRO";
  o.margin = "YES";
  o.screenName = "BSEIPO";
  o.bsePCode = "BP1";
  return o;
}

sOFSOrderInfo reported() {
  sOFSOrderInfo o;
  o.exchange = "bse_ipo";
  o.field31003 = "U5";
  o.clientId = "A1";
  o.walkinClientId = "W1";
  o.issueId = "I1";
  o.ofsOrderNo = "17";
  o.priceType = "MKT";
  o.field12003 = "B";
  o.cfStatus = "Active";
  o.margin = "100% Margin";
  o.pCode = "BP";
  return o;
}

struct RequestCase {
  const char* name;
  bool uuid;
  std::function<int32_t(const OrderContext&)> build;
  int32_t result;
  std::string line;
};

class OrderRequests : public testing::TestWithParam<RequestCase> {};

TEST_P(OrderRequests, SendTheFieldsInOrder) {
  TestChannel channel;
  PlacedOrderMap placed;
  OrderContext context{channel.layer, "U1", "P1", GetParam().uuid ? fakeUuid : nullptr, &placed};
  EXPECT_EQ(GetParam().build(context), GetParam().result);
  EXPECT_EQ(channel.transcript, Lines{GetParam().line});
  EXPECT_TRUE(channel.prompt.messages().empty());
}

INSTANTIATE_TEST_SUITE_P(
    Builders, OrderRequests,
    testing::Values(
        RequestCase{"ofs_defaults_without_side", true,
                    [](auto& c) {
                      auto o = bid();
                      return placeOfsOrder(c, o);
                    },
                    0,
                    "send 1 om_put_order_ofs 64030=\"CNC\" 63001=\"nse_ipo\" 31003=\"U1\" "
                    "54001=\"A1\" 63100=\"I1\" 12004=\"10\" 63058=\"Institutional\" 12008=\"L\" "
                    "10306=\"12345\" 54056=\"C\" 64170=\"NO\" 12005=\"OFS\" 54158=\"G1\""},
        RequestCase{"ofs_every_field", true,
                    [](auto& c) {
                      auto o = fullBid();
                      return placeOfsOrder(c, o);
                    },
                    0,
                    "send 1 om_put_order_ofs 64030=\"CNC\" 63001=\"bse_ipo\" 31003=\"U1\" "
                    "54001=\"A1\" 63100=\"I1\" 12004=\"10\" 63058=\"RI\" 12008=\"L\" "
                    "10306=\"12345\" 12003=\"S\" 54056=\"F\" 64170=\"YES\" 10332=\"PC1\" "
                    "12005=\"OFS\" 54158=\"G1\" 13034=\"BP1\""},
        RequestCase{"ofs_bulk_bse_pcode_before_ofs", true,
                    [](auto& c) {
                      auto o = fullBid();
                      return placeOfsOrderBulk(c, o, "99.5");
                    },
                    0,
                    "send 1 om_put_order_ofs 64030=\"CNC\" 63001=\"bse_ipo\" 31003=\"U1\" "
                    "54001=\"A1\" 63100=\"I1\" 12004=\"10\" 63058=\"RI\" 12008=\"L\" "
                    "10306=\"9950\" 12003=\"S\" 54056=\"F\" 64170=\"YES\" 10332=\"PC1\" "
                    "13034=\"BP1\" 12005=\"OFS\" 54158=\"G1\""},
        RequestCase{"ofs_exchange_key_and_no_uuid", false,
                    [](auto& c) {
                      auto o = bid();
                      o.screenName = "bse_ipo";
                      return placeOfsOrder(c, o);
                    },
                    0,
                    "send 1 om_put_order_ofs 64030=\"CNC\" 63001=\"bse_ipo\" 31003=\"U1\" "
                    "54001=\"A1\" 63100=\"I1\" 12004=\"10\" 63058=\"Institutional\" 12008=\"L\" "
                    "10306=\"12345\" 54056=\"C\" 64170=\"NO\" 12005=\"OFS\""},
        RequestCase{"walkin_market_takes_the_default_pcode", true,
                    [](auto& c) {
                      auto o = bid();
                      o.marketFlag = "Y";
                      o.screenName = "BSEIPO";
                      return placeWalkinOrder(c, o);
                    },
                    0,
                    "send 1 om_put_order_walkin 63001=\"nse_ipo\" 31003=\"U1\" 63100=\"I1\" "
                    "12004=\"10\" 12008=\"MKT\" 32760=\"MKT\" 10306=\"12345\" 54056=\"C\" "
                    "64170=\"NO\" 10332=\"P1\" 12005=\"OFS\" 64916=\"W1\" 54158=\"G1\""},
        RequestCase{"walkin_limit_with_its_pcode", false,
                    [](auto& c) {
                      auto o = fullBid();
                      return placeWalkinOrder(c, o);
                    },
                    0,
                    "send 1 om_put_order_walkin 63001=\"nse_ipo\" 31003=\"U1\" 63100=\"I1\" "
                    "12004=\"10\" 12008=\"L\" 10306=\"12345\" 12003=\"S\" 54056=\"F\" "
                    "64170=\"YES\" 10332=\"PC1\" 12005=\"OFS\" 64916=\"W1\""},
        RequestCase{"walkin_bulk_price_apart", false,
                    [](auto& c) {
                      auto o = bid();
                      return placeWalkinOrderBulk(c, o, "7");
                    },
                    0,
                    "send 1 om_put_order_walkin 63001=\"nse_ipo\" 31003=\"U1\" 63100=\"I1\" "
                    "12004=\"10\" 12008=\"L\" 10306=\"700\" 54056=\"C\" 64170=\"NO\" "
                    "10332=\"P1\" 12005=\"OFS\" 64916=\"W1\""},
        RequestCase{"cancel_bse_order_still_nse", true,
                    [](auto& c) { return cancelOfsOrder(c, reported()); }, 1,
                    "send 1 om_cancel_order_ofs 63001=\"nse_ipo\" 31003=\"U1\" 54001=\"A1\" "
                    "63100=\"I1\" 64001=\"17\" 54158=\"G1\""},
        RequestCase{"cancel_walkin", false,
                    [](auto& c) { return cancelWalkinOrder(c, reported()); }, 1,
                    "send 1 om_cancel_order_walkin 63001=\"nse_ipo\" 31003=\"U1\" 64916=\"W1\" "
                    "63100=\"I1\" 64001=\"17\""},
        RequestCase{"cancel_ofs_bulk_row", false,
                    [](auto& c) {
                      auto row = bid();
                      row.orderNumber = "18";
                      row.userId = "U7";
                      return cancelOfsOrderBulk(c, row);
                    },
                    1,
                    "send 1 om_cancel_order_ofs 63001=\"nse_ipo\" 31003=\"U1\" 54001=\"A1\" "
                    "63100=\"I1\" 64001=\"18\""},
        RequestCase{"cancel_walkin_bulk_row_user", false,
                    [](auto& c) {
                      auto row = bid();
                      row.orderNumber = "18";
                      row.userId = "U7";
                      return cancelWalkinOrderBulk(c, row);
                    },
                    1,
                    "send 1 om_cancel_order_walkin 63001=\"nse_ipo\" 31003=\"U7\" 64916=\"W1\" "
                    "63100=\"I1\" 64001=\"18\""},
        RequestCase{"modify_bse_market_order", true,
                    [](auto& c) { return modifyOfsOrder(c, reported(), "150", "20"); }, 1,
                    "send 1 om_modify_order_ofs 63001=\"bse_ipo\" 31003=\"U5\" 54001=\"A1\" "
                    "63100=\"I1\" 12005=\"OFS\" 12008=\"MKT\" 32760=\"MKT\" 10306=\"15000\" "
                    "12004=\"20\" 64001=\"17\" 12003=\"B\" 54056=\"Active\" 64170=\"YES\" "
                    "10332=\"BP\" 54158=\"G1\" 13034=\"BP\""},
        RequestCase{"modify_nse_limit_without_margin_word", false,
                    [](auto& c) {
                      auto o = reported();
                      o.exchange = "nse_ipo";
                      o.priceType = "L";
                      o.margin = "";
                      o.pCode = "";
                      return modifyOfsOrder(c, o, "150.5", "20");
                    },
                    1,
                    "send 1 om_modify_order_ofs 63001=\"nse_ipo\" 31003=\"U5\" 54001=\"A1\" "
                    "63100=\"I1\" 12005=\"OFS\" 12008=\"L\" 10306=\"15050\" 12004=\"20\" "
                    "64001=\"17\" 12003=\"B\" 54056=\"Active\""},
        RequestCase{"modify_walkin_with_given_pcode", true,
                    [](auto& c) {
                      auto o = reported();
                      o.margin = "No Margin";
                      return modifyWalkinOrder(c, o, "150", "20", "WP");
                    },
                    1,
                    "send 1 om_modify_order_walkin 63001=\"bse_ipo\" 31003=\"U5\" 64916=\"W1\" "
                    "63100=\"I1\" 12005=\"OFS\" 12008=\"MKT\" 32760=\"MKT\" 10306=\"15000\" "
                    "12004=\"20\" 64001=\"17\" 12003=\"B\" 54056=\"Active\" 64170=\"NO\" "
                    "10332=\"WP\" 54158=\"G1\""},
        RequestCase{"modify_ofs_bulk_row_values", false,
                    [](auto& c) {
                      auto row = bid();
                      return modifyOfsOrderBulk(c, reported(), row);
                    },
                    1,
                    "send 1 om_modify_order_ofs 63001=\"bse_ipo\" 31003=\"U5\" 54001=\"A1\" "
                    "63100=\"I1\" 12005=\"OFS\" 12008=\"MKT\" 32760=\"MKT\" 10306=\"12345\" "
                    "12004=\"10\" 64001=\"17\" 12003=\"B\" 54056=\"Active\" 64170=\"YES\" "
                    "10332=\"BP\" 13034=\"BP\""},
        RequestCase{"modify_walkin_bulk_row_pcode", false,
                    [](auto& c) {
                      auto row = bid();
                      return modifyWalkinOrderBulk(c, reported(), row);
                    },
                    1,
                    "send 1 om_modify_order_walkin 63001=\"bse_ipo\" 31003=\"U5\" 64916=\"W1\" "
                    "63100=\"I1\" 12005=\"OFS\" 12008=\"MKT\" 32760=\"MKT\" 10306=\"12345\" "
                    "12004=\"10\" 64001=\"17\" 12003=\"B\" 54056=\"Active\" 64170=\"YES\""}),
    [](const auto& info) { return info.param.name; });

struct ProCliCase {
  const char* name;
  const char* typed;
  const char* letter;
};

class ProCliLetters : public testing::TestWithParam<ProCliCase> {};

TEST_P(ProCliLetters, AreSentAndWrittenBack) {
  TestChannel channel;
  OrderContext context{channel.layer, "U1", "P1"};
  sOFSPlaceOrder o = bid();
  o.proCli = GetParam().typed;
  placeWalkinOrder(context, o);
  EXPECT_EQ(o.proCli, GetParam().letter);
  EXPECT_NE(channel.transcript.at(0).find(std::string("54056=\"") + GetParam().letter + "\""),
            std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(Choices, ProCliLetters,
                         testing::Values(ProCliCase{"pro", "PRO", "F"},
                                         ProCliCase{"cli", "CLI", "C"},
                                         ProCliCase{"other_unchanged", "Pro", "Pro"}),
                         [](const auto& info) { return info.param.name; });

class Placing : public testing::Test {
 protected:
  TestChannel channel;
  PlacedOrderMap placed;
  OrderContext context{channel.layer, "U1", "P1", nullptr, &placed};
};

TEST_F(Placing, AnEmptySideBecomesBuyInTheRecord) {
  sOFSPlaceOrder o = bid();
  placeOfsOrder(context, o);
  EXPECT_EQ(o.side, "B");
  EXPECT_EQ(channel.transcript.at(0).find("12003="), std::string::npos);
}

TEST_F(Placing, ASentOfsOrderIsRememberedUnderItsReference) {
  sOFSPlaceOrder o = bid();
  placeOfsOrder(context, o);
  ASSERT_EQ(placed.count("R1"), 1u);
  EXPECT_EQ(placed.at("R1").proCli, "C");
}

TEST_F(Placing, OnlyTheScreenOfsBuilderRemembers) {
  sOFSPlaceOrder o = bid();
  placeOfsOrderBulk(context, o, "1");
  placeWalkinOrder(context, o);
  EXPECT_TRUE(placed.empty());
}

TEST_F(Placing, AFailedSendIsReportedAndNotRemembered) {
  channel.control(1).failSends(true);
  sOFSPlaceOrder o = bid();
  EXPECT_EQ(placeOfsOrder(context, o), 1);
  EXPECT_EQ(placeWalkinOrder(context, o), 1);
  EXPECT_EQ(modifyOfsOrder(context, reported(), "1", "1"), 1);
  EXPECT_TRUE(placed.empty());
  EXPECT_EQ(channel.prompt.messages(),
            (Lines{"set_ipo_ofs_order is failed , while sending request",
                   "put_ipo_ofs_order is failed , while sending request",
                   "modify_ipo_ofs_order is failed , while sending request"}));
}

TEST_F(Placing, CancelFailureUsesItsOwnPrefix) {
  channel.control(1).failSends(true);
  cancelWalkinOrder(context, reported());
  EXPECT_EQ(channel.prompt.messages(),
            (Lines{"cancel_ipo_ofs_order is failed , while sending request"}));
}

}  // namespace
