// The order book's commands on selected lines: what each refuses, asks and sends.
#include <gtest/gtest.h>

#include <memory>
#include <regex>

#include "orderbook/order_book.h"
#include "tests/support/order_entry_fixture.h"

namespace {

// An open limit order of the issue as the fixture makes it, changed by a word: "pending",
// "closed", "Inactive" / "inactive" (its carry-forward status), "nomargin" (NSE), "bsenomargin",
// "walkin", "market", "bigger" (quantity 50), "otherissue", "bse" (same issue id on BSE).
void change(sOFSOrderInfo& o, const std::string& how) {
  if (how == "pending") o.status = "open pending";
  if (how == "closed") o.status = "cancelled";
  if (how == "Inactive" || how == "inactive") o.cfStatus = how;
  if (how == "nomargin" || how == "bsenomargin") o.margin = "No Margin";
  if (how == "bsenomargin" || how == "bse") o.exchange = "bse_ipo";
  if (how == "walkin") o.walkinClientId = "W1";
  if (how == "walkin") o.clientId.clear();
  if (how == "market") o.priceType = "MKT";
  if (how == "bigger") o.quantity = "50";
  if (how == "otherissue") o.issueId = "I2";
}

class RecordingLauncher : public OrderBookLauncher {
 public:
  void openOrderModification(const sOFSOrderInfo& order, const sOFSCol&) override {
    opened.push_back("modify " + order.ofsOrderNo);
  }
  bool ensureModifyPriceWindow() override { return windowReady; }
  void openModifyPrice(std::vector<sOFSOrderInfo*> orders, const std::string& heading) override {
    std::string line = heading + "|";
    for (const sOFSOrderInfo* o : orders) line += " " + o->ofsOrderNo;
    opened.push_back(line);
  }
  void openHistory(const std::string& orderNo) override { opened.push_back("history " + orderNo); }
  void askHistoryOrderNumber() override { opened.push_back("ask order number"); }

  Lines opened;
  bool windowReady = true;
};

class OrderBookCommandsTest : public OrderEntryFixture {
 protected:
  void SetUp() override {
    start();
    book = std::make_unique<COrderBookDlgBar>(block(), launcher);
    issue = &const_cast<sOFSCol&>(addIssue(nseIssue("IS")));
  }

  // Orders 17, 18, ... each changed by its word ("" leaves it open).
  std::vector<sOFSOrderInfo*> orders(const Lines& changes) {
    host.promptLog.clear();
    host.state.events.clear();
    launcher.opened.clear();
    std::vector<sOFSOrderInfo*> made;
    for (const std::string& how : changes) {
      owned_.push_back(std::make_unique<sOFSOrderInfo>(openOrder("ABC-IS")));
      owned_.back()->ofsOrderNo = std::to_string(17 + made.size());
      change(*owned_.back(), how);
      made.push_back(owned_.back().get());
    }
    return made;
  }

  // Each request as its name and order number: "om_cancel_order_ofs 17".
  Lines sentOrders() const {
    static const std::regex kSend(R"(^send \d+ (\S+) .*64001="([^"]*)\")");
    Lines lines;
    for (const std::string& send : sends()) {
      std::smatch m;
      lines.push_back(std::regex_search(send, m, kSend) ? m[1].str() + " " + m[2].str() : send);
    }
    return lines;
  }

  // Messages, questions and what was sent or opened, in that order.
  Lines outcome() {
    Lines all = prompt().messages();
    for (const std::string& q : prompt().questions()) all.push_back("? " + q);
    for (const std::string& s : sentOrders()) all.push_back(s);
    all.insert(all.end(), launcher.opened.begin(), launcher.opened.end());
    return all;
  }

  sOFSCol* issue = nullptr;
  RecordingLauncher launcher;
  std::unique_ptr<COrderBookDlgBar> book;

 private:
  std::vector<std::unique_ptr<sOFSOrderInfo>> owned_;
};

const char kActiveCf[] = "please select order with active CF Status";
const char kCancel17[] = "om_cancel_order_ofs 17";
const char kNotMatching[] = "Contract Information not matching";

struct BookCase {
  const char* name;
  Lines orders;
  Lines outcome;
  bool answer = true;
};

TEST_F(OrderBookCommandsTest, CancelRefusesAsksAndSendsInSelectionOrder) {
  const std::string one = "? Do you want to cancel Order No: 17 ";
  const std::string three = "? You have selected 3 Orders to Cancel. Proceed?";
  const std::string one18 = "? Do you want to cancel Order No: 18 ";
  const std::string pending = "Plese select a open order", cf = kActiveCf, c17 = kCancel17;
  const std::string inactive = "Orders with Inactive status cannot be cancelled";
  const std::string noMargin =
      "Order cancellation not allowed (in case Institutional orders with 0% margin)";
  const std::vector<BookCase> cases = {
      {"one open order", {""}, {one, c17}},
      {"answered no", {""}, {one}, false},
      {"pending passed over", {"pending", ""}, {pending, one18, "om_cancel_order_ofs 18"}},
      {"nothing open: nothing asked", {"closed"}, {pending}},
      {"Inactive stops before asking", {"", "Inactive", ""}, {cf}},
      {"inactive second: the first only", {"", "inactive", ""}, {inactive, three, c17}},
      {"NSE 0% margin skipped",
       {"", "nomargin", ""},
       {noMargin, three, c17, "om_cancel_order_ofs 19"}},
      {"BSE No Margin is cancelled", {"bsenomargin"}, {one, c17}},
      {"walk-in order", {"walkin"}, {one, "om_cancel_order_walkin 17"}},
  };
  for (const BookCase& c : cases) {
    auto selected = orders(c.orders);
    host.promptLog.queueAnswer(c.answer);
    book->cancelOrders(selected);
    EXPECT_EQ(outcome(), c.outcome) << c.name;
  }
}

TEST_F(OrderBookCommandsTest, IssueFlagsStopCancelAndModifyBeforeAnything) {
  const struct {
    const char* bidding;
    const char* modifyCancel;
    std::string cancel;
    std::string modify;
  } cases[] = {
      {"N", "Y", "Cancellation of bid not allowed. Please contact Administrator",
       "Modification of bid not allowed. Please contact Administrator"},
      {"Y", "N", "Bid not allowed to Cancel", "Bid not allowed to Modify"},
  };
  for (const auto& c : cases) {
    issue->biddingFlag = c.bidding;
    issue->modifyCancelFlag = c.modifyCancel;
    EXPECT_FALSE(book->cancelOrders(orders({"", ""})));
    EXPECT_EQ(outcome(), Lines{c.cancel});
    book->modifyOrder(orders({""}).front(), ModifyPath::Menu);
    EXPECT_EQ(outcome(), Lines{c.modify});
  }
}

TEST_F(OrderBookCommandsTest, ModifyOpensOrderEntryOnlyForAnOpenOrderOfAKnownIssue) {
  const struct {
    const char* change;
    ModifyPath path;
    std::string outcome;
  } cases[] = {
      {"", ModifyPath::Menu, "modify 17"},
      {"Inactive", ModifyPath::Menu, kActiveCf},
      {"pending", ModifyPath::Menu, "Please select an open order."},
      {"pending", ModifyPath::List, "Please select a open order."},
  };
  for (const auto& c : cases) {
    book->modifyOrder(orders({c.change}).front(), c.path);
    EXPECT_EQ(outcome(), Lines{c.outcome}) << c.change;
  }
  auto unlisted = orders({""});
  unlisted.front()->symbol = "ZZZ-IS";
  book->modifyOrder(unlisted.front(), ModifyPath::Menu);
  EXPECT_EQ(outcome(), Lines{"Please select an open order."});
}

TEST_F(OrderBookCommandsTest, BulkModifyKeepsOpenLimitOrdersOfOneContract) {
  const std::vector<BookCase> cases = {
      {"one contract", {"", "bigger"}, {"Number Of Orders : 2 Total Qty : 150 | 17 18"}},
      {"closed, MKT skipped",
       {"closed", "market", ""},
       {"Number Of Orders : 1 Total Qty : 100 | 19"}},
      {"two issues", {"", "otherissue"}, {kNotMatching}},
      {"one issue id on two exchanges", {"", "bse"}, {kNotMatching}},
      {"last one is closed", {"market", "closed"}, {"Please select open Order"}},
      {"last one is market", {"closed", "market"}, {"Market Order Price Modification Not Allowed"}},
      {"CF inactive stops", {"", "Inactive"}, {kActiveCf}},
  };
  for (const BookCase& c : cases) {
    book->bulkModify(orders(c.orders));
    EXPECT_EQ(outcome(), c.outcome) << c.name;
  }
  issue->modifyCancelFlag = "N";
  book->bulkModify(orders({""}));
  EXPECT_EQ(outcome(), Lines{"Bulk Modification is Not Allowed For 17"});
  launcher.windowReady = false;
  book->bulkModify(orders({""}));
  EXPECT_EQ(outcome(), Lines{"Error creating Modify Multiple order Dlg"});
}

TEST_F(OrderBookCommandsTest, CarryForwardRefusals) {
  const struct {
    const char* series;
    const char* change;
    void (*arrange)(sOFSCol&);
    std::string message;
  } cases[] = {
      {"IS", "pending", [](sOFSCol&) {}, "Please select an Open order."},
      {"IS", "", [](sOFSCol& i) { i.biddingFlag = "N"; },
       "Carry Forward of bid not allowed. Please contact Administrator"},
      {"IS", "", [](sOFSCol& i) { i.modifyCancelFlag = "N"; }, "Bid not allowed to Carry Forward"},
      {"RS", "", [](sOFSCol&) {}, "Carry forward option is not allowed for RS series orders."},
      {"IS", "", [](sOFSCol& i) { i.field79 = "21/11/2026"; },
       "Carry forward option is not allowed for day orders."},
  };
  for (const auto& c : cases) {
    sOFSCol changed = nseIssue(c.series);
    changed.field79 = "24/11/2026";
    c.arrange(changed);
    addIssue(changed);
    auto selected = orders({c.change});
    selected.front()->symbol = changed.symbol;
    book->carryForward(selected);
    EXPECT_EQ(outcome(), Lines{c.message}) << c.message;
  }
}

TEST_F(OrderBookCommandsTest, CarryForwardSendsEachOrderThenSaysSo) {
  issue->field79 = "24/11/2026";
  book->carryForward(orders({"", "walkin"}));
  EXPECT_EQ(sends(), (Lines{R"(send 1 om_carry_forward_ofs 63001="nse_ipo" 31003="U1" 54001="A1" )"
                            R"(63100="I1" 64001="17" 63058="NonRetail" 50110="11/21/2026" )"
                            R"(10306="150.00" 12004="100" 54158="UUID-1")",
                            R"(send 1 om_carry_forward_ofs 63001="nse_ipo" 31003="U1" 64916="W1" )"
                            R"(63100="I1" 64001="18" 63058="NonRetail" 50110="11/21/2026" )"
                            R"(10306="150.00" 12004="100" 54158="UUID-2")"}));
  EXPECT_EQ(prompt().messages(), Lines{"Carry Forward request sent successfully."});
}

TEST_F(OrderBookCommandsTest, HistoryOfTheFocusedOrderOrAskedFor) {
  book->showHistory(orders({""}).front());
  book->showHistory(nullptr);
  EXPECT_EQ(launcher.opened, (Lines{"history 17", "ask order number"}));
}

}  // namespace
