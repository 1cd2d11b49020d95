#include "orderbook/modify_order_price.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <ostream>

#include "orderbook/order_book_port.h"
#include "tests/support/record_with.h"
#include "tests/support/test_channel.h"

namespace {

class FakeBookPort : public OrderBookPort {
 public:
  OrderContext orderContext() override { return {channel.layer, user, "P1"}; }
  MessageLayer& messageLayer() override { return channel.layer; }
  const std::string& userId() const override { return user; }
  int64_t now() const override { return 0; }
  PromptPort& prompt() override { return prompts; }
  const sOFSCol* issueOfOrder(const sOFSOrderInfo& order) const override {
    auto found = issues.find(order.symbol);
    return found == issues.end() ? nullptr : &found->second;
  }

  std::string user = "U1";
  TestChannel channel;
  RecordingPrompt prompts;
  std::map<std::string, sOFSCol> issues;
};

// The sent modifications as "<message> <order> <paise> <quantity> <pcode>", joined by "; ".
std::string sentOf(const Lines& transcript) {
  std::string sent;
  for (const std::string& line : transcript) {
    sent += (sent.empty() ? "" : "; ") + line.substr(23, line.find(' ', 23) - 23);
    for (const std::string id : {" 64001=\"", " 10306=\"", " 12004=\"", " 10332=\""}) {
      const size_t at = line.find(id), from = at + id.size();
      sent += ' ';
      if (at != std::string::npos) sent += line.substr(from, line.find('"', from) - from);
    }
  }
  return sent;
}

// Open retail orders 17 and 18 of account A1, PCode PC, on NSE: 100 at 150.00 each.
sOFSOrderInfo orderOf(const std::string& number) {
  using O = sOFSOrderInfo;
  return with(O{}, &O::ofsOrderNo, number, &O::exchange, "nse_ipo", &O::issueId, "I1-RS",
              &O::symbol, "ABC-RS", &O::clientId, "A1", &O::pCode, "PC", &O::price, "15000",
              &O::quantity, "100");
}

using Orders = std::vector<sOFSOrderInfo>;
using Arrange = std::function<void(Orders&, sOFSCol&)>;
const Arrange kAsIs = [](Orders&, sOFSCol&) {};

void institutionalUnmargined(Orders& orders, sOFSCol&) {
  for (sOFSOrderInfo& o : orders) {
    o.issueId = "I1-IS";
    o.margin = "No Margin";
  }
}

Arrange onBse(const std::string& category) {
  return [category](Orders& orders, sOFSCol&) {
    for (sOFSOrderInfo& o : orders) {
      o.exchange = "bse_ipo";
      o.issueId = "I1-Retail";
      o.field12005 = category;
    }
  };
}

const Arrange kOwnQuantities = [](Orders& o, sOFSCol&) { o[1].quantity = "40"; };
const Arrange kFirstWalkin = [](Orders& o, sOFSCol&) { o[0].clientId.clear(); };
const Arrange kSecondOnHigherFloor = [](Orders& o, sOFSCol&) { o[1].symbol = "DEF-RS"; };
const Arrange kPlacedWholeRupeeTick = [](Orders& o, sOFSCol&) { o[0].issueTickSize = 1; };
const Arrange kTickOf29Paise = [](Orders&, sOFSCol& i) { i.tickSize = 0.29; };
const Arrange kIssueSize50 = [](Orders&, sOFSCol& i) { i.issueSize = 50; };

// A row: what is arranged, what is typed, the one message and focus the window gives (empty for
// none) and what it sends.
struct Case {
  const char* name;
  Arrange arrange;
  std::string price;
  std::string quantity;
  std::string message;
  std::string focus;
  std::string sent;
  friend void PrintTo(const Case& c, std::ostream* os) { *os << c.name; }
};

Lines lines(const std::string& text) {
  return text.empty() ? Lines{} : Lines{text};
}

class ModifyPriceOk : public testing::TestWithParam<Case> {};

TEST_P(ModifyPriceOk, WalksTheOrdersInTurn) {
  const Case& c = GetParam();
  // "ABC-RS": floor 100, tick 0.05, minimum 10, lot 5, no size limit, HNI limit 500000; "DEF-RS"
  // the same with floor 160.
  using C = sOFSCol;
  sOFSCol issue = with(C{}, &C::floorPrice, "100", &C::tickSize, 0.05, &C::minQuantity, 10,
                       &C::lotSize, 5, &C::hniLimit, "500000");
  Orders orders{orderOf("17"), orderOf("18")};
  c.arrange(orders, issue);
  FakeBookPort port;
  port.issues["ABC-RS"] = port.issues["DEF-RS"] = issue;
  port.issues["DEF-RS"].floorPrice = "160";
  CModifyOrderPrice screen(port);
  screen.load({&orders[0], &orders[1]}, "Number Of Orders : 2 Total Qty : 200 ");
  ASSERT_TRUE(screen.setPrice(c.price));
  ASSERT_TRUE(screen.setQuantity(c.quantity));
  screen.ok();
  EXPECT_EQ(port.prompts.messages(), lines(c.message));  // a skip is told once
  EXPECT_EQ(port.prompts.focused(), lines(c.focus));
  EXPECT_EQ(sentOf(port.channel.transcript), c.sent);
  // Only a run that sent something and was not stopped clears the boxes and hides.
  const bool hides = !c.sent.empty() && c.message.empty();
  EXPECT_EQ(screen.visible(), !hides);
  EXPECT_EQ(screen.priceText(), hides ? "" : c.price);
  EXPECT_EQ(screen.quantityText(), hides ? "" : c.quantity);
}

const char kRetailCap[] = "Amount cannot be greater than 200000 for Retail orders";
const char kZero[] = "Price cannot be zero";
const char kTick[] = "Price should be multiple of Tick Size which is 0.05 rupees for this security";

INSTANTIATE_TEST_SUITE_P(
    Steps, ModifyPriceOk,
    testing::Values(
        Case{"own_quantities", kOwnQuantities, "150.5", "", "", "",
             "ofs 17 15050 100 PC; ofs 18 15050 40 PC"},
        Case{"walkin_with_its_pcode", kFirstWalkin, "150", "20", "", "",
             "walkin 17 15000 20 PC; ofs 18 15000 20 PC"},
        Case{"retail_cap_told_once", kAsIs, "2000.05", "", kRetailCap, "", ""},
        Case{"floor_stops_the_second", kSecondOnHigherFloor, "150", "",
             "Price Should be more than Floor Price 160.0000", "Price", "ofs 17 15000 100 PC"},
        Case{"empty_price", kAsIs, "", "", "Please enter Price", "Price", ""},
        Case{"price_0", kAsIs, "0", "", kZero, "Price", ""},
        Case{"price_0.0", kAsIs, "0.0", "", kZero, "Price", ""},
        Case{"price_0.00", kAsIs, "0.00", "", kZero, "Price", ""},
        Case{"off_the_issue_tick", kAsIs, "150.03", "", kTick, "", ""},
        Case{"off_a_placed_orders_tick", kPlacedWholeRupeeTick, "150.50", "",
             "Price should be multiple of Tick Size which is 1.00 rupees for this security", "",
             ""},
        Case{"issue_tick_rounded", kTickOf29Paise, "150.22", "", "", "",
             "ofs 17 15022 100 PC; ofs 18 15022 100 PC"},
        Case{"quantity_zero", kAsIs, "150", "0", "Quantity cannot be zero", "Quantity", ""},
        Case{"quantity_at_issue_size", kIssueSize50, "150", "50", "", "",
             "ofs 17 15000 50 PC; ofs 18 15000 50 PC"},
        Case{"quantity_above_issue_size", kIssueSize50, "150", "55",
             "Qty should be lesser than 50 (Issue Size) for this security", "", ""},
        Case{"nse_is_price_down", institutionalUnmargined, "149.95", "",
             "Price cannot be modified downwards", "", ""},
        Case{"nse_is_quantity_down", institutionalUnmargined, "150", "95",
             "Quantity cannot be modified downwards", "", ""},
        Case{"bse_below_hni", onBse("Non-institutional"), "150", "",
             "Value of Order Type Non-Institutional should exceed HNI Limit 500000", "", ""},
        Case{"bse_over_cap", onBse("Retail"), "2000.05", "", kRetailCap, "", ""}));

TEST(ModifyPriceScreen, ShowsTheOrdersAndRefusesOtherCharacters) {
  FakeBookPort port;
  CModifyOrderPrice screen(port);
  sOFSOrderInfo order = orderOf("17");
  screen.load({&order}, "Number Of Orders : 1 Total Qty : 100 ");
  EXPECT_EQ((Lines{screen.columnText(0, 0), screen.columnText(0, 1), screen.columnText(0, 2)}),
            (Lines{"17", "100", "150.00"}));
  EXPECT_FALSE(screen.setPrice("150a"));
  EXPECT_FALSE(screen.setQuantity("2.5"));
  EXPECT_EQ(screen.quantityText() + screen.priceText(), "");
}

}  // namespace
