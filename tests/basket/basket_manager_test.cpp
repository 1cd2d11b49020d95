// The basket screen: the checks of "Add" in order, the row each entry makes, and placing.
#include "basket/basket_manager.h"

#include <gtest/gtest.h>

#include <functional>

#include "tests/support/order_entry_fixture.h"

namespace {

using namespace basket_label;

class BasketTest : public OrderEntryFixture {
 protected:
  void SetUp() override {
    host.state.accounts = {"A1", "A2"};
    host.state.pcodes = {{"A1", "PC1"}};
    start();
    basket = std::make_unique<CBasketManagerOFS>(block());
  }

  // Opens on the issue, enters a bid and adds it.
  void addBid(const sOFSCol& issue, const std::string& account, const std::string& quantity,
              const std::string& price, const std::function<void(CBasketManagerOFS&)>& more = {}) {
    basket->open(&addIssue(issue));
    basket->selectClientId(account);
    basket->setQuantity(quantity);
    basket->setPrice(price);
    if (more) more(*basket);
    prompt().clear();
    basket->add();
  }

  std::unique_ptr<CBasketManagerOFS> basket;
};

struct AddCase {
  const char* name;
  sOFSCol issue;
  std::string account, quantity, price;
  std::function<void(CBasketManagerOFS&)> more;
  std::string message;
  std::string focus;
};

TEST_F(BasketTest, AddRefusesInOrderAndNamesTheField) {
  sOFSCol sized = nseIssue("RS");
  sized.issueSize = 50;
  const sOFSCol rs = nseIssue("RS"), is = nseIssue("IS"), bse = bseIssue("Retail");
  const auto cutOff = [](CBasketManagerOFS& b) { b.setCutOff(true); };
  const auto zero = [](CBasketManagerOFS& b) { b.setPrice("0"); };
  const auto retail = [](CBasketManagerOFS& b) { b.selectOrderType("Retail"); };
  const std::function<void(CBasketManagerOFS&)> none;
  const std::string tick =
      "Price should be multiple of Tick Size which is 0.05 rupees for this security";
  const std::vector<AddCase> cases = {
      {"no account", rs, "", "10", "150", none, "Please select AccountId", kClientId},
      {"no quantity", rs, "A2", "", "150", none, "Please enter Quantity", kQuantity},
      {"no price", rs, "A2", "10", "", none, "Please enter Price", kPrice},
      {"zero price", rs, "A2", "10", "", zero, "Price cant be zero", kPrice},
      {"off the tick", rs, "A2", "10", "150.03", none, tick, kPrice},
      {"below minimum", rs, "A2", "5", "150", none, "Order minimum Quantity is 10", kQuantity},
      {"off the lot", rs, "A2", "12", "150", none,
       "Qty should be a multiple of Lot which is 5 for this contract", kQuantity},
      {"above the size", sized, "A2", "55", "150", none,
       "Qty should be lesser than 50 (Issue Size) for this contract", kQuantity},
      {"RS with a PCode, non-institutional", rs, "A1", "10", "150", none,
       "Non-institutional orders are not allowed for institutional clients.", ""},
      {"RS with a PCode, retail", rs, "A1", "10", "150", retail,
       "Retail orders are not allowed for institutional clients.", ""},
      {"IS without a PCode", is, "A2", "10", "150", none, "Please Enter Participant Code",
       kParticipantCode},
      {"BSE without a PCode", bse, "A2", "10", "150", none, "Please enter Participant Code",
       kParticipantCode},
      {"below the floor", rs, "A2", "10", "99.95", none,
       "Price Should be more than Floor Price 100.0000", kPrice},
      {"cut-off passes", rs, "A2", "10", "", cutOff, "", kQuantity},
      // Two faults each: the earlier step must speak.
      {"account before quantity", rs, "", "", "", none, "Please select AccountId", kClientId},
      {"quantity before price", rs, "A2", "", "", none, "Please enter Quantity", kQuantity},
      {"tick before minimum", rs, "A2", "5", "150.03", none, tick, kPrice},
      {"minimum before lot", rs, "A2", "7", "150", none, "Order minimum Quantity is 10", kQuantity},
      {"PCode before floor", is, "A2", "10", "99.95", none, "Please Enter Participant Code",
       kParticipantCode},
  };
  for (const AddCase& c : cases) {
    addBid(c.issue, c.account, c.quantity, c.price, c.more);
    EXPECT_EQ(prompt().messages(), c.message.empty() ? Lines{} : Lines{c.message}) << c.name;
    EXPECT_EQ(prompt().focused(), c.focus.empty() ? Lines{} : Lines{c.focus}) << c.name;
    EXPECT_EQ(basket->rowCount(), c.message.empty() ? 1u : 0u) << c.name;
    basket->reset();
  }
}

TEST_F(BasketTest, WithoutAnIssueNothingIsAdded) {
  basket->open(nullptr);
  basket->selectClientId("A2");
  basket->setQuantity("10");
  basket->add();
  EXPECT_EQ(prompt().messages(), Lines{"IssueID not found"});
}

// The row's exchange key, Pro/Cli, order type, margin text and flag, cut-off flag, price.
std::string summary(const sOFSPlaceOrder& r) {
  return r.screenName + " " + r.proCli + " " + r.orderType + "|" + r.marginText + " " + r.margin +
         " " + r.marketFlag + " " + r.price + " " + r.side + " " + r.userId;
}

TEST_F(BasketTest, RowsCarryTheFlagsOfTheirSeriesAndExchange) {
  const auto noMargin = [](CBasketManagerOFS& b) { b.selectMargin("No Margin"); };
  const auto cutOff = [](CBasketManagerOFS& b) { b.setCutOff(true); };
  const struct {
    sOFSCol issue;
    std::string account;
    std::function<void(CBasketManagerOFS&)> more;
    std::string row;
  } cases[] = {
      {nseIssue("RS"), "A2", {}, "nse_ipo CLI Non-institutional|100% Margin YES N 150 B U1"},
      {nseIssue("RS"), "A2", cutOff, "nse_ipo CLI Non-institutional|100% Margin YES Y MKT B U1"},
      {nseIssue("IS"), "A1", noMargin, "nse_ipo CLI |No Margin NO N 150 B U1"},
      // Intended: a BSE row reads its flag from the participant code, so "No Margin" says YES.
      {bseIssue("NonRetail"), "A1", noMargin,
       "bse_ipo CLI Non-institutional|No Margin YES N 150 B U1"},
  };
  for (const auto& c : cases) {
    addBid(c.issue, c.account, "10", "150", c.more);
    ASSERT_EQ(basket->rowCount(), 1u)
        << c.row << " refused: " << testing::PrintToString(prompt().messages());
    EXPECT_EQ(summary(basket->row(0)), c.row);
    EXPECT_EQ(basket->fields().count, " Total : 1");
    basket->reset();
  }
}

TEST_F(BasketTest, NewRowsGoOnTopAndAnEditedRowIsReplacedInPlace) {
  addBid(nseIssue("RS"), "A2", "10", "150");
  basket->setQuantity("20");
  basket->setPrice("151");
  basket->add();
  ASSERT_EQ(basket->rowCount(), 2u);
  EXPECT_EQ(basket->row(0).quantity, "20");
  basket->editRow(1);
  EXPECT_EQ(basket->addButtonText(), "&Modify");
  EXPECT_EQ(basket->fields().quantity.text, "10");
  basket->setQuantity("30");
  basket->add();
  EXPECT_EQ(basket->addButtonText(), "Add");
  EXPECT_EQ(basket->row(1).quantity, "30");
  EXPECT_EQ(basket->fields().count, " Total : 2");
}

TEST_F(BasketTest, PlacingAsksOnceAndSendsOneWalkinBidPerTickedRowInListOrder) {
  basket->place();
  EXPECT_EQ(prompt().messages(), Lines{"Please Select an Order"});
  for (const char* quantity : {"10", "20", "30"}) addBid(nseIssue("RS"), "A2", quantity, "150");
  for (size_t row = 0; row < 3; ++row) basket->setTicked(row, true);
  host.promptLog.queueAnswer(false);
  basket->place();
  EXPECT_TRUE(sends().empty());
  EXPECT_TRUE(basket->placeEnabled());
  basket->place();
  EXPECT_EQ(prompt().questions(), Lines(2, "Are you sure to place these Basket Orders?"));
  Lines quantities;
  for (const std::string& send : sends()) {
    EXPECT_EQ(send.rfind(R"(send 1 om_put_order_walkin 63001="nse_ipo" 31003="U1" 63100="I1" )", 0),
              0u)
        << send;
    quantities.push_back(send.substr(send.find("12004=") + 7, 2));
  }
  EXPECT_EQ(quantities, (Lines{"30", "20", "10"}));
  EXPECT_EQ(basket->row(0).proCli, "CLI");  // the row keeps what it shows
}

}  // namespace
