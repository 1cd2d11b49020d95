// The order book's commands on selected lines: what each refuses, asks and sends.
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <regex>

#include "orderbook/order_book.h"
#include "tests/support/order_entry_fixture.h"

namespace {

using Change = std::function<void(sOFSOrderInfo&)>;

Change status(const char* s) {
  return [s](sOFSOrderInfo& o) { o.status = s; };
}
Change cf(const char* s) {
  return [s](sOFSOrderInfo& o) { o.cfStatus = s; };
}
Change noMargin(const char* exchange) {
  return [exchange](sOFSOrderInfo& o) {
    o.margin = "No Margin";
    o.exchange = exchange;
  };
}
const Change kAsIs = [](sOFSOrderInfo&) {};

class RecordingLauncher : public OrderBookLauncher {
 public:
  void openOrderModification(const sOFSOrderInfo& order, const sOFSCol&) override {
    opened.push_back("modify " + order.ofsOrderNo);
  }
  bool ensureModifyPriceWindow() override { return windowReady; }
  void openModifyPrice(std::vector<sOFSOrderInfo*> orders, const std::string& heading) override {
    std::string line = "modify-price " + heading + "|";
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

  // Orders 17, 18, ... of the issue, each changed by its entry.
  std::vector<sOFSOrderInfo*> orders(const std::vector<Change>& changes) {
    std::vector<sOFSOrderInfo*> made;
    for (const Change& change : changes) {
      auto order = std::make_unique<sOFSOrderInfo>(openOrder("ABC-IS"));
      order->ofsOrderNo = std::to_string(17 + made.size());
      change(*order);
      made.push_back(order.get());
      owned_.push_back(std::move(order));
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

  sOFSCol* issue = nullptr;
  RecordingLauncher launcher;
  std::unique_ptr<COrderBookDlgBar> book;

 private:
  std::vector<std::unique_ptr<sOFSOrderInfo>> owned_;
};

struct CancelCase {
  const char* name;
  std::vector<Change> orders;
  bool biddingClosed;
  bool answer;
  Lines messages;
  Lines questions;
  Lines sent;
};

TEST_F(OrderBookCommandsTest, CancelRefusesAsksAndSendsInSelectionOrder) {
  const std::string one = "Do you want to cancel Order No: 17 ";
  const std::string three = "You have selected 3 Orders to Cancel. Proceed?";
  const std::string pending = "Plese select a open order";
  const std::vector<CancelCase> cases = {
      {"one open order", {kAsIs}, false, true, {}, {one}, {"om_cancel_order_ofs 17"}},
      {"answered no", {kAsIs}, false, false, {}, {one}, {}},
      {"open pending is passed over",
       {status("open pending"), kAsIs},
       false,
       true,
       {pending},
       {"Do you want to cancel Order No: 18 "},
       {"om_cancel_order_ofs 18"}},
      {"nothing open: nothing asked", {status("complete")}, false, true, {pending}, {}, {}},
      {"Inactive anywhere stops before asking",
       {kAsIs, cf("Inactive"), kAsIs},
       false,
       true,
       {"please select order with active CF Status"},
       {},
       {}},
      {"inactive second: the first only",
       {kAsIs, cf("inactive"), kAsIs},
       false,
       true,
       {"Orders with Inactive status cannot be cancelled"},
       {three},
       {"om_cancel_order_ofs 17"}},
      {"NSE No Margin skipped, the others go on",
       {kAsIs, noMargin("nse_ipo"), kAsIs},
       false,
       true,
       {"Order cancellation not allowed (in case Institutional orders with 0% margin)"},
       {three},
       {"om_cancel_order_ofs 17", "om_cancel_order_ofs 19"}},
      {"BSE No Margin is cancelled",
       {noMargin("bse_ipo")},
       false,
       true,
       {},
       {one},
       {"om_cancel_order_ofs 17"}},
      {"walk-in order",
       {[](sOFSOrderInfo& o) {
         o.clientId.clear();
         o.walkinClientId = "W1";
       }},
       false,
       true,
       {},
       {one},
       {"om_cancel_order_walkin 17"}},
      {"issue closed to bidding",
       {kAsIs, kAsIs},
       true,
       true,
       {"Cancellation of bid not allowed. Please contact Administrator"},
       {},
       {}},
  };
  for (const CancelCase& c : cases) {
    SCOPED_TRACE(c.name);
    issue->biddingFlag = c.biddingClosed ? "N" : "Y";
    host.promptLog.clear();
    host.state.events.clear();
    host.promptLog.queueAnswer(c.answer);
    book->cancelOrders(orders(c.orders));
    EXPECT_EQ(prompt().messages(), c.messages);
    EXPECT_EQ(prompt().questions(), c.questions);
    EXPECT_EQ(sentOrders(), c.sent);
  }
}

TEST_F(OrderBookCommandsTest, CancelRefusedByModifyCancelFlagSendsNothing) {
  issue->modifyCancelFlag = "N";
  EXPECT_FALSE(book->cancelOrders(orders({kAsIs})));
  EXPECT_EQ(prompt().messages(), Lines{"Bid not allowed to Cancel"});
  EXPECT_TRUE(sends().empty());
}

struct ModifyCase {
  const char* name;
  Change order;
  const char* bidding;
  const char* modifyCancel;
  ModifyPath path;
  std::string message;  // empty: order entry opens
};

TEST_F(OrderBookCommandsTest, ModifyOpensOrderEntryOnlyForAnOpenOrderItsIssueAllows) {
  const std::vector<ModifyCase> cases = {
      {"open order", kAsIs, "Y", "Y", ModifyPath::Menu, ""},
      {"closed to bidding", kAsIs, "N", "Y", ModifyPath::Menu,
       "Modification of bid not allowed. Please contact Administrator"},
      {"no modify", kAsIs, "Y", "N", ModifyPath::Menu, "Bid not allowed to Modify"},
      {"CF inactive", cf("Inactive"), "Y", "Y", ModifyPath::Menu,
       "please select order with active CF Status"},
      {"pending from the menu", status("open pending"), "Y", "Y", ModifyPath::Menu,
       "Please select an open order."},
      {"pending from the list", status("open pending"), "Y", "Y", ModifyPath::List,
       "Please select a open order."},
      {"no order number", [](sOFSOrderInfo& o) { o.ofsOrderNo.clear(); }, "Y", "Y",
       ModifyPath::Menu, "Please select an open order."},
      {"issue not listed", [](sOFSOrderInfo& o) { o.symbol = "ZZZ-IS"; }, "Y", "Y",
       ModifyPath::Menu, "Please select an open order."},
  };
  for (const ModifyCase& c : cases) {
    SCOPED_TRACE(c.name);
    issue->biddingFlag = c.bidding;
    issue->modifyCancelFlag = c.modifyCancel;
    host.promptLog.clear();
    launcher.opened.clear();
    book->modifyOrder(orders({c.order}).front(), c.path);
    EXPECT_EQ(prompt().messages(), c.message.empty() ? Lines{} : Lines{c.message});
    EXPECT_EQ(launcher.opened.size(), c.message.empty() ? 1u : 0u);
  }
}

struct BulkCase {
  const char* name;
  std::vector<Change> orders;
  std::string outcome;  // the message, or what was opened
};

TEST_F(OrderBookCommandsTest, BulkModifyKeepsOpenLimitOrdersOfOneContract) {
  auto otherIssue = [](sOFSOrderInfo& o) { o.issueId = "I2"; };
  auto market = [](sOFSOrderInfo& o) { o.priceType = "MKT"; };
  auto bigger = [](sOFSOrderInfo& o) { o.quantity = "50"; };
  const std::vector<BulkCase> cases = {
      {"two of one contract",
       {kAsIs, bigger},
       "modify-price Number Of Orders : 2 Total Qty : 150 | 17 18"},
      {"closed and market lines skipped",
       {status("complete"), market, kAsIs},
       "modify-price Number Of Orders : 1 Total Qty : 100 | 19"},
      {"two issues", {kAsIs, otherIssue}, "Contract Information not matching"},
      {"same issue id on the other exchange",
       {kAsIs, [](sOFSOrderInfo& o) { o.exchange = "bse_ipo"; }},
       "Contract Information not matching"},
      {"last examined is closed", {market, status("cancelled")}, "Please select open Order"},
      {"last examined is market",
       {status("cancelled"), market},
       "Market Order Price Modification Not Allowed"},
      {"CF inactive stops", {kAsIs, cf("Inactive")}, "please select order with active CF Status"},
  };
  for (const BulkCase& c : cases) {
    SCOPED_TRACE(c.name);
    host.promptLog.clear();
    launcher.opened.clear();
    book->bulkModify(orders(c.orders));
    Lines outcome = prompt().messages();
    outcome.insert(outcome.end(), launcher.opened.begin(), launcher.opened.end());
    EXPECT_EQ(outcome, Lines{c.outcome});
  }
}

TEST_F(OrderBookCommandsTest, BulkModifyRefusalsBeforeAnyLine) {
  issue->modifyCancelFlag = "N";
  book->bulkModify(orders({kAsIs}));
  launcher.windowReady = false;
  book->bulkModify(orders({kAsIs}));
  EXPECT_EQ(prompt().messages(), (Lines{"Bulk Modification is Not Allowed For 17",
                                        "Error creating Modify Multiple order Dlg"}));
  EXPECT_TRUE(launcher.opened.empty());
}

struct CarryCase {
  const char* name;
  std::string series;
  Change order;
  std::function<void(sOFSCol&)> issue;
  std::string message;
};

TEST_F(OrderBookCommandsTest, CarryForwardRefusals) {
  auto closesToday = [](sOFSCol& i) { i.field79 = "21/11/2026"; };
  auto none = [](sOFSCol&) {};
  const std::vector<CarryCase> cases = {
      {"not open", "IS", status("open pending"), none, "Please select an Open order."},
      {"closed to bidding", "IS", kAsIs, [](sOFSCol& i) { i.biddingFlag = "N"; },
       "Carry Forward of bid not allowed. Please contact Administrator"},
      {"no modify", "IS", kAsIs, [](sOFSCol& i) { i.modifyCancelFlag = "N"; },
       "Bid not allowed to Carry Forward"},
      {"retail series", "RS", kAsIs, none,
       "Carry forward option is not allowed for RS series orders."},
      {"closes today", "IS", kAsIs, closesToday,
       "Carry forward option is not allowed for day orders."},
  };
  for (const CarryCase& c : cases) {
    SCOPED_TRACE(c.name);
    sOFSCol changed = nseIssue(c.series);
    changed.field79 = "24/11/2026";
    c.issue(changed);
    addIssue(changed);
    host.promptLog.clear();
    host.state.events.clear();
    auto selected = orders({c.order});
    selected.front()->symbol = changed.symbol;
    book->carryForward(selected);
    EXPECT_EQ(prompt().messages(), Lines{c.message});
    EXPECT_TRUE(sends().empty());
  }
}

TEST_F(OrderBookCommandsTest, CarryForwardSendsEachOrderThenSaysSo) {
  issue->field79 = "24/11/2026";
  auto selected = orders({kAsIs, [](sOFSOrderInfo& o) {
                            o.clientId.clear();
                            o.walkinClientId = "W1";
                          }});
  book->carryForward(selected);
  EXPECT_EQ(sends(),
            (Lines{"send 1 om_carry_forward_ofs 63001=\"nse_ipo\" 31003=\"U1\" "
                   "54001=\"A1\" 63100=\"I1\" 64001=\"17\" 63058=\"NonRetail\" "
                   "50110=\"11/21/2026\" 10306=\"150.00\" 12004=\"100\" 54158=\"UUID-1\"",
                   "send 1 om_carry_forward_ofs 63001=\"nse_ipo\" 31003=\"U1\" "
                   "64916=\"W1\" 63100=\"I1\" 64001=\"18\" 63058=\"NonRetail\" "
                   "50110=\"11/21/2026\" 10306=\"150.00\" 12004=\"100\" 54158=\"UUID-2\""}));
  EXPECT_EQ(prompt().messages(), Lines{"Carry Forward request sent successfully."});
}

TEST_F(OrderBookCommandsTest, HistoryOfTheFocusedOrderOrAskedFor) {
  book->showHistory(orders({kAsIs}).front());
  book->showHistory(nullptr);
  EXPECT_EQ(launcher.opened, (Lines{"history 17", "ask order number"}));
}

}  // namespace
