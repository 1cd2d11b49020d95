#include "messaging/order_requests.h"

#include <gtest/gtest.h>

#include <functional>

#include "tests/support/field_text.h"
#include "tests/support/record_with.h"
#include "tests/support/test_channel.h"

namespace {

int fakeUuid(std::string& out) {
  out = "G1";
  return 1;
}

using P = sOFSPlaceOrder;
using O = sOFSOrderInfo;

const P kBid = with(P{}, &P::issueId, "I1", &P::clientId, "A1", &P::price, "123.45", &P::quantity,
                    "10", &P::proCli, "CLI", &P::priceType, "L", &P::screenName, "NSEIPO",
                    &P::walkinClientId, "W1", &P::reference, "R1");
const P kFull = with(kBid, &P::category, "RI", &P::pCode, "PC1", &P::side, "S", &P::proCli, "PRO",
                     &P::margin, "YES", &P::screenName, "BSEIPO", &P::bsePCode, "BP1");
// A bulk row naming order 18 of user U7.
const P kRow = with(kFull, &P::orderNumber, "18", &P::userId, "U7");
const O kOrder =
    with(O{}, &O::exchange, "bse_ipo", &O::field31003, "U5", &O::clientId, "A1", &O::walkinClientId,
         "W1", &O::issueId, "I1", &O::ofsOrderNo, "17", &O::priceType, "MKT", &O::field12003, "B",
         &O::cfStatus, "Active", &O::margin, "100% Margin", &O::pCode, "BP");
const O kNseLimit =
    with(kOrder, &O::exchange, "nse_ipo", &O::priceType, "L", &O::margin, "", &O::pCode, "");

struct RequestCase {
  const char* name;
  std::function<int32_t(const OrderContext&)> build;
  int32_t result;
  std::string head;
  const char* fields;
  bool uuid = true;
  friend void PrintTo(const RequestCase& c, std::ostream* os) { *os << c.name; }
};

class OrderRequests : public testing::TestWithParam<RequestCase> {};

TEST_P(OrderRequests, SendTheFieldsInOrder) {
  TestChannel channel;
  PlacedOrderMap placed;
  OrderContext context{channel.layer, "U1", "P1", GetParam().uuid ? fakeUuid : nullptr, &placed};
  EXPECT_EQ(GetParam().build(context), GetParam().result);
  EXPECT_EQ(channel.transcript, Lines{wireLine(GetParam().head, GetParam().fields)});
  EXPECT_TRUE(channel.prompt.messages().empty());
}

// Builds with a copy of `order`, which the place builders change.
template <typename Builder, typename... Args>
std::function<int32_t(const OrderContext&)> place(Builder builder, P order, Args... args) {
  return [=](const OrderContext& c) {
    P fresh = order;  // each run starts from the unchanged record
    return builder(c, fresh, args...);
  };
}

const std::string kOfs = "send 1 om_put_order_ofs", kWalkin = "send 1 om_put_order_walkin",
                  kCancel = "send 1 om_cancel_order_ofs", kModify = "send 1 om_modify_order_ofs",
                  kCancelWalkin = "send 1 om_cancel_order_walkin";

INSTANTIATE_TEST_SUITE_P(
    Builders, OrderRequests,
    testing::Values(
        RequestCase{"ofs_defaults_without_side", place(placeOfsOrder, kBid), 0, kOfs,
                    "64030=CNC 63001=nse_ipo 31003=U1 54001=A1 63100=I1 12004=10 "
                    "63058=Institutional 12008=L 10306=12345 54056=C 64170=NO 12005=OFS 54158=G1"},
        RequestCase{"ofs_every_field", place(placeOfsOrder, kFull), 0, kOfs,
                    "64030=CNC 63001=bse_ipo 31003=U1 54001=A1 63100=I1 12004=10 63058=RI 12008=L "
                    "10306=12345 12003=S 54056=F 64170=YES 10332=PC1 12005=OFS 54158=G1 13034=BP1"},
        RequestCase{"ofs_bulk_with_an_exchange_key_and_no_uuid",
                    place(placeOfsOrderBulk, with(kFull, &P::screenName, "bse_ipo"), "99.5"), 0,
                    kOfs,
                    "64030=CNC 63001=bse_ipo 31003=U1 54001=A1 63100=I1 12004=10 63058=RI 12008=L "
                    "10306=9950 12003=S 54056=F 64170=YES 10332=PC1 13034=BP1 12005=OFS",
                    false},
        RequestCase{"walkin_market_with_the_default_pcode",
                    place(placeWalkinOrder, with(kBid, &P::marketFlag, "Y")), 0, kWalkin,
                    "63001=nse_ipo 31003=U1 63100=I1 12004=10 12008=MKT 32760=MKT 10306=12345 "
                    "54056=C 64170=NO 10332=P1 12005=OFS 64916=W1 54158=G1"},
        RequestCase{"walkin_bulk_limit_with_its_pcode", place(placeWalkinOrderBulk, kFull, "7"), 0,
                    kWalkin,
                    "63001=nse_ipo 31003=U1 63100=I1 12004=10 12008=L 10306=700 12003=S 54056=F "
                    "64170=YES 10332=PC1 12005=OFS 64916=W1",
                    false},
        RequestCase{"cancel_of_a_bse_order_goes_to_nse",
                    [](auto& c) { return cancelOfsOrder(c, kOrder); }, 1, kCancel,
                    "63001=nse_ipo 31003=U1 54001=A1 63100=I1 64001=17 54158=G1"},
        RequestCase{"cancel_walkin", [](auto& c) { return cancelWalkinOrder(c, kOrder); }, 1,
                    kCancelWalkin, "63001=nse_ipo 31003=U1 64916=W1 63100=I1 64001=17", false},
        RequestCase{"cancel_ofs_bulk_row", [](auto& c) { return cancelOfsOrderBulk(c, kRow); }, 1,
                    kCancel, "63001=nse_ipo 31003=U1 54001=A1 63100=I1 64001=18", false},
        RequestCase{"cancel_walkin_bulk_row_user",
                    [](auto& c) { return cancelWalkinOrderBulk(c, kRow); }, 1, kCancelWalkin,
                    "63001=nse_ipo 31003=U7 64916=W1 63100=I1 64001=18", false},
        RequestCase{"modify_bse_market_order",
                    [](auto& c) { return modifyOfsOrder(c, kOrder, "150", "20"); }, 1, kModify,
                    "63001=bse_ipo 31003=U5 54001=A1 63100=I1 12005=OFS 12008=MKT 32760=MKT "
                    "10306=15000 12004=20 64001=17 12003=B 54056=Active 64170=YES 10332=BP "
                    "54158=G1 13034=BP"},
        RequestCase{"modify_nse_limit_without_margin_word",
                    [](auto& c) { return modifyOfsOrder(c, kNseLimit, "150.5", "20"); }, 1, kModify,
                    "63001=nse_ipo 31003=U5 54001=A1 63100=I1 12005=OFS 12008=L 10306=15050 "
                    "12004=20 64001=17 12003=B 54056=Active",
                    false},
        RequestCase{"modify_ofs_bulk_row_values",
                    [](auto& c) { return modifyOfsOrderBulk(c, kOrder, kRow); }, 1, kModify,
                    "63001=bse_ipo 31003=U5 54001=A1 63100=I1 12005=OFS 12008=MKT 32760=MKT "
                    "10306=12345 12004=10 64001=17 12003=B 54056=Active 64170=YES 10332=BP "
                    "13034=BP",
                    false},
        RequestCase{"modify_walkin_bulk_row_pcode",
                    [](auto& c) { return modifyWalkinOrderBulk(c, kOrder, kRow); }, 1,
                    "send 1 om_modify_order_walkin",
                    "63001=bse_ipo 31003=U5 64916=W1 63100=I1 12005=OFS 12008=MKT 32760=MKT "
                    "10306=12345 12004=10 64001=17 12003=B 54056=Active 64170=YES 10332=PC1",
                    false}));

class Placing : public testing::Test {
 protected:
  TestChannel channel;
  PlacedOrderMap placed;
  OrderContext context{channel.layer, "U1", "P1", nullptr, &placed};
};

TEST_F(Placing, WritesTheLettersBackAndRemembersOnlyAScreenOfsOrder) {
  P o = with(kBid, &P::proCli, "Pro");
  placeOfsOrderBulk(context, o, "1");
  placeWalkinOrder(context, o);
  EXPECT_TRUE(placed.empty());
  EXPECT_EQ(o.proCli, "Pro");
  o = kBid;
  placeOfsOrder(context, o);
  EXPECT_EQ((Lines{o.side, o.proCli, placed.at("R1").side}), (Lines{"B", "C", "B"}));
}

TEST_F(Placing, AFailedSendIsReportedAndNotRemembered) {
  channel.control(1).failSends(true);
  P o = kBid;
  EXPECT_EQ(placeOfsOrder(context, o), 1);
  EXPECT_EQ(placeWalkinOrder(context, o), 1);
  EXPECT_EQ(modifyOfsOrder(context, kOrder, "1", "1"), 1);
  EXPECT_EQ(cancelWalkinOrder(context, kOrder), 1);
  EXPECT_TRUE(placed.empty());
  EXPECT_EQ(channel.prompt.messages(),
            (Lines{"set_ipo_ofs_order is failed , while sending request",
                   "put_ipo_ofs_order is failed , while sending request",
                   "modify_ipo_ofs_order is failed , while sending request",
                   "cancel_ipo_ofs_order is failed , while sending request"}));
}

}  // namespace
