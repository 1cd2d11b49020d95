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

// A bulk row naming order 18 of user U7.
sOFSPlaceOrder row() {
  sOFSPlaceOrder o = fullBid();
  o.orderNumber = "18";
  o.userId = "U7";
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
  std::function<int32_t(const OrderContext&)> build;
  int32_t result;
  std::string line;
  bool uuid = true;
  friend void PrintTo(const RequestCase& c, std::ostream* os) { *os << c.name; }
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

// Builds with a copy of `order`, which the place builders change.
template <typename Builder, typename... Args>
std::function<int32_t(const OrderContext&)> with(Builder builder, sOFSPlaceOrder order,
                                                 Args... args) {
  return [=](const OrderContext& c) {
    sOFSPlaceOrder fresh = order;  // each run starts from the unchanged record
    return builder(c, fresh, args...);
  };
}

sOFSPlaceOrder market(sOFSPlaceOrder o) {
  o.marketFlag = "Y";
  return o;
}

sOFSPlaceOrder keyed(sOFSPlaceOrder o) {
  o.screenName = "bse_ipo";
  return o;
}

sOFSOrderInfo nseLimitWithoutMarginWord() {
  sOFSOrderInfo o = reported();
  o.exchange = "nse_ipo";
  o.priceType = "L";
  o.margin = "";
  o.pCode = "";
  return o;
}

const sOFSPlaceOrder kBid = bid();
const sOFSPlaceOrder kFull = fullBid();
const sOFSOrderInfo kOrder = reported();
const std::string kOfs = "send 1 om_put_order_ofs 64030=\"CNC\" ";
const std::string kWalkin = "send 1 om_put_order_walkin 63001=\"nse_ipo\" 31003=\"U1\" ";
const std::string kModify = "63001=\"bse_ipo\" 31003=\"U5\" ";

INSTANTIATE_TEST_SUITE_P(
    Builders, OrderRequests,
    testing::Values(
        RequestCase{"ofs_defaults_without_side", with(placeOfsOrder, kBid), 0,
                    kOfs + "63001=\"nse_ipo\" 31003=\"U1\" 54001=\"A1\" 63100=\"I1\" 12004=\"10\" "
                           "63058=\"Institutional\" 12008=\"L\" 10306=\"12345\" 54056=\"C\" "
                           "64170=\"NO\" 12005=\"OFS\" 54158=\"G1\""},
        RequestCase{"ofs_every_field", with(placeOfsOrder, kFull), 0,
                    kOfs + "63001=\"bse_ipo\" 31003=\"U1\" 54001=\"A1\" 63100=\"I1\" 12004=\"10\" "
                           "63058=\"RI\" 12008=\"L\" 10306=\"12345\" 12003=\"S\" 54056=\"F\" "
                           "64170=\"YES\" 10332=\"PC1\" 12005=\"OFS\" 54158=\"G1\" 13034=\"BP1\""},
        RequestCase{"ofs_bulk_with_an_exchange_key_and_no_uuid",
                    with(placeOfsOrderBulk, keyed(kFull), "99.5"), 0,
                    kOfs + "63001=\"bse_ipo\" 31003=\"U1\" 54001=\"A1\" 63100=\"I1\" 12004=\"10\" "
                           "63058=\"RI\" 12008=\"L\" 10306=\"9950\" 12003=\"S\" 54056=\"F\" "
                           "64170=\"YES\" 10332=\"PC1\" 13034=\"BP1\" 12005=\"OFS\"",
                    false},
        RequestCase{"walkin_market_with_the_default_pcode", with(placeWalkinOrder, market(kBid)), 0,
                    kWalkin + "63100=\"I1\" 12004=\"10\" 12008=\"MKT\" 32760=\"MKT\" "
                              "10306=\"12345\" 54056=\"C\" 64170=\"NO\" 10332=\"P1\" "
                              "12005=\"OFS\" 64916=\"W1\" 54158=\"G1\""},
        RequestCase{"walkin_bulk_limit_with_its_pcode", with(placeWalkinOrderBulk, kFull, "7"), 0,
                    kWalkin + "63100=\"I1\" 12004=\"10\" 12008=\"L\" 10306=\"700\" 12003=\"S\" "
                              "54056=\"F\" 64170=\"YES\" 10332=\"PC1\" 12005=\"OFS\" "
                              "64916=\"W1\"",
                    false},
        RequestCase{"cancel_of_a_bse_order_goes_to_nse",
                    [](auto& c) { return cancelOfsOrder(c, kOrder); }, 1,
                    "send 1 om_cancel_order_ofs 63001=\"nse_ipo\" 31003=\"U1\" 54001=\"A1\" "
                    "63100=\"I1\" 64001=\"17\" 54158=\"G1\""},
        RequestCase{"cancel_walkin", [](auto& c) { return cancelWalkinOrder(c, kOrder); }, 1,
                    "send 1 om_cancel_order_walkin 63001=\"nse_ipo\" 31003=\"U1\" 64916=\"W1\" "
                    "63100=\"I1\" 64001=\"17\"",
                    false},
        RequestCase{"cancel_ofs_bulk_row", [](auto& c) { return cancelOfsOrderBulk(c, row()); }, 1,
                    "send 1 om_cancel_order_ofs 63001=\"nse_ipo\" 31003=\"U1\" 54001=\"A1\" "
                    "63100=\"I1\" 64001=\"18\"",
                    false},
        RequestCase{"cancel_walkin_bulk_row_user",
                    [](auto& c) { return cancelWalkinOrderBulk(c, row()); }, 1,
                    "send 1 om_cancel_order_walkin 63001=\"nse_ipo\" 31003=\"U7\" 64916=\"W1\" "
                    "63100=\"I1\" 64001=\"18\"",
                    false},
        RequestCase{"modify_bse_market_order",
                    [](auto& c) { return modifyOfsOrder(c, kOrder, "150", "20"); }, 1,
                    "send 1 om_modify_order_ofs " + kModify +
                        "54001=\"A1\" 63100=\"I1\" 12005=\"OFS\" 12008=\"MKT\" 32760=\"MKT\" "
                        "10306=\"15000\" 12004=\"20\" 64001=\"17\" 12003=\"B\" "
                        "54056=\"Active\" 64170=\"YES\" 10332=\"BP\" 54158=\"G1\" 13034=\"BP\""},
        RequestCase{
            "modify_nse_limit_without_margin_word",
            [](auto& c) { return modifyOfsOrder(c, nseLimitWithoutMarginWord(), "150.5", "20"); },
            1,
            "send 1 om_modify_order_ofs 63001=\"nse_ipo\" 31003=\"U5\" 54001=\"A1\" "
            "63100=\"I1\" 12005=\"OFS\" 12008=\"L\" 10306=\"15050\" 12004=\"20\" "
            "64001=\"17\" 12003=\"B\" 54056=\"Active\"",
            false},
        RequestCase{"modify_ofs_bulk_row_values",
                    [](auto& c) { return modifyOfsOrderBulk(c, kOrder, row()); }, 1,
                    "send 1 om_modify_order_ofs " + kModify +
                        "54001=\"A1\" 63100=\"I1\" 12005=\"OFS\" 12008=\"MKT\" 32760=\"MKT\" "
                        "10306=\"12345\" 12004=\"10\" 64001=\"17\" 12003=\"B\" "
                        "54056=\"Active\" 64170=\"YES\" 10332=\"BP\" 13034=\"BP\"",
                    false},
        RequestCase{"modify_walkin_bulk_row_pcode",
                    [](auto& c) { return modifyWalkinOrderBulk(c, kOrder, row()); }, 1,
                    "send 1 om_modify_order_walkin " + kModify +
                        "64916=\"W1\" 63100=\"I1\" 12005=\"OFS\" 12008=\"MKT\" 32760=\"MKT\" "
                        "10306=\"12345\" 12004=\"10\" 64001=\"17\" 12003=\"B\" "
                        "54056=\"Active\" 64170=\"YES\" 10332=\"PC1\"",
                    false}),
    [](const auto& info) { return info.param.name; });

class Placing : public testing::Test {
 protected:
  TestChannel channel;
  PlacedOrderMap placed;
  OrderContext context{channel.layer, "U1", "P1", nullptr, &placed};
};

TEST_F(Placing, WritesTheLettersBackAndRemembersOnlyAScreenOfsOrder) {
  sOFSPlaceOrder o = bid();
  o.proCli = "Pro";
  placeOfsOrderBulk(context, o, "1");
  placeWalkinOrder(context, o);
  EXPECT_TRUE(placed.empty());
  EXPECT_EQ(o.proCli, "Pro");
  o = bid();
  placeOfsOrder(context, o);
  EXPECT_EQ(o.side, "B");
  EXPECT_EQ(o.proCli, "C");
  ASSERT_EQ(placed.count("R1"), 1u);
  EXPECT_EQ(placed.at("R1").side, "B");
}

TEST_F(Placing, AFailedSendIsReportedAndNotRemembered) {
  channel.control(1).failSends(true);
  sOFSPlaceOrder o = bid();
  EXPECT_EQ(placeOfsOrder(context, o), 1);
  EXPECT_EQ(placeWalkinOrder(context, o), 1);
  EXPECT_EQ(modifyOfsOrder(context, reported(), "1", "1"), 1);
  EXPECT_EQ(cancelWalkinOrder(context, reported()), 1);
  EXPECT_TRUE(placed.empty());
  EXPECT_EQ(channel.prompt.messages(),
            (Lines{"set_ipo_ofs_order is failed , while sending request",
                   "put_ipo_ofs_order is failed , while sending request",
                   "modify_ipo_ofs_order is failed , while sending request",
                   "cancel_ipo_ofs_order is failed , while sending request"}));
}

}  // namespace
