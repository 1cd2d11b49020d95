#include <gtest/gtest.h>

#include <algorithm>

#include "tests/host_sim/sim_fixture.h"

namespace simtest {
namespace {

TEST(OrderPlacement, RepliesWithTheRowThenBroadcastsPendingThenOpen) {
  SimFixture f;
  f.subscribeListeners();
  const auto out = f.ask("om_put_order_ofs", placement(""));
  EXPECT_EQ(describe(f, out, {64001, 64655, 32766}),
            (Lines{"reply asker om_put_order_ofs 64001=1001 64655=open pending",
                   "reply asker om_put_order_ofs 32766=",
                   "live listener om_put_order_ofs 64001=1001 64655=open pending",
                   "live listener om_put_order_ofs 64001=1001 64655=open"}));
  EXPECT_EQ(describe(f, {out[0]}, {54001, 63100, 12004, 12005, 64170, 10306, 63001, 10100}),
            (Lines{"reply asker om_put_order_ofs 54001=A2 63100=N1 12004=10 12005=OFS "
                   "64170=YES 10306=10150 63001=nse_ipo 10100=ABC-RS"}));
  EXPECT_EQ(f.exchange.findOrder("1001")->status, "open");
}

TEST(OrderPlacement, AcceptedEndsWithoutError) {
  const struct {
    const char *name, *changes, *price;
  } cases[] = {{"terminal_account", "54001=T1", "10150"},
               {"cut_off_without_price", "12008=MKT 10306=", "MKT"},
               {"last_day_of_a_one_day_issue", "63100=N2", "10150"}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    SimFixture f;
    EXPECT_EQ(describe(f, f.ask("om_put_order_ofs", placement(c.changes)), {10306, 32766}),
              (Lines{"reply asker om_put_order_ofs 10306=" + std::string(c.price),
                     "reply asker om_put_order_ofs 32766="}));
  }
}

// Each row fails at one step; a row failing two gets the first step's message.
TEST(OrderPlacement, RefusedEndsInErrorAndBroadcastsARejectedOrder) {
  const struct {
    const char *name, *changes, *code, *text;
  } cases[] = {
      {"held_by_administrator", "63100=N5", "E201", "Issue N5 is not open for bidding"},
      {"closed_yesterday", "63100=N3", "E201", "Issue N3 is not open for bidding"},
      {"opens_tomorrow", "63100=N4", "E201", "Issue N4 is not open for bidding"},
      {"unknown_issue", "63100=N9", "E200", "Issue N9 is not known"},
      {"unknown_account", "54001=ZZ", "E202", "Account ZZ is not known"},
      {"below_minimum", "12004=5", "E206", "Quantity 5 is below the minimum of 10"},
      {"not_a_lot_multiple", "12004=12", "E207", "Quantity 12 is not a multiple of the lot of 5"},
      {"quantity_before_price", "12004=5 10306=9995", "E206",
       "Quantity 5 is below the minimum of 10"},
      {"below_floor", "10306=9995", "E208", "Price 99.95 is below the floor price 100.00"},
      {"off_tick", "10306=10102", "E209", "Price 101.02 is not a multiple of the tick 0.05"},
      {"cut_off_not_taken", "63100=N2 12008=MKT", "E210", "Issue N2 takes no cut-off bids"}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    SimFixture f;
    f.subscribeListeners();
    const std::string text = c.text;
    EXPECT_EQ(
        describe(f, f.ask("om_put_order_ofs", placement(c.changes)), {32766, 64001, 64655, 20008}),
        (Lines{"reply asker om_put_order_ofs 32766=" + std::string(c.code) + " 32766=" + text,
               "live listener om_put_order_ofs 64001=1001 64655=rejected 20008=" + text}));
    EXPECT_EQ(f.exchange.findOrder("1001")->status, "rejected");
  }
}

TEST(WalkinPlacement, TakesTheIssuesExchangeAndEchoesTheMarketTag) {
  SimFixture f;
  f.subscribeListeners();
  const auto out = f.ask("om_put_order_walkin",
                         fieldsOf("63001=nse_ipo 31003=U1 63100=B1 12004=4 12008=MKT 32760=MKT "
                                  "10306=0 10332=PCW 12005=OFS 64916=W2"));
  const std::string row = "om_put_order_walkin 63001=bse_ipo 64916=W2 10306=MKT 64739=PCW ";
  EXPECT_EQ(describe(f, out, {63001, 64916, 10306, 64739, 64655, 32766, 32760}),
            (Lines{"reply asker " + row + "64655=open pending 32760=MKT",
                   "reply asker om_put_order_walkin 32766= 32760=MKT",
                   "live bse " + row + "64655=open pending", "live bse " + row + "64655=open"}));
}

TEST(OrderChanges, ModifyTakesTheNewPriceAndQuantityAndCancelFindsAnyExchangesOrder) {
  SimFixture f;
  f.subscribeListeners();
  EXPECT_EQ(describe(f,
                     f.ask("om_modify_order_ofs", fieldsOf("63001=nse_ipo 31003=U1 54001=A2 "
                                                           "63100=N1 12005=OFS 12008=L 10306=10200 "
                                                           "12004=20 64001=501")),
                     {64001, 12004, 10306, 64655, 32766}),
            (Lines{"reply asker om_modify_order_ofs 64001=501 12004=20 10306=10200 64655=open",
                   "reply asker om_modify_order_ofs 32766=",
                   "live listener om_modify_order_ofs 64001=501 12004=20 10306=10200 64655=open"}));
  // The cancel request names "nse_ipo" whatever the order's exchange; 505 is a BSE order.
  EXPECT_EQ(describe(f, f.ask("om_cancel_order_ofs", fieldsOf("63001=nse_ipo 31003=U1 64001=505")),
                     {64001, 63001, 64655, 32766}),
            (Lines{"reply asker om_cancel_order_ofs 64001=505 63001=bse_ipo 64655=cancelled",
                   "reply asker om_cancel_order_ofs 32766=",
                   "live bse om_cancel_order_ofs 64001=505 63001=bse_ipo 64655=cancelled"}));
}

TEST(OrderChanges, RefusedEndsInErrorAndKeepsTheOrdersStatus) {
  // `to` hears of the refusal, with the order's kept status; an unknown order tells nobody.
  const struct {
    const char *message, *request, *code, *text, *to, *status;
  } cases[] = {{"om_modify_order_ofs", "64001=504 12004=10 10306=10100", "E204",
                "Order 504 is no longer open", "listener", "cancelled"},
               {"om_cancel_order_ofs", "63001=nse_ipo 64001=507", "E205",
                "Orders of issue B2 may not be modified or cancelled", "bse", "open"},
               {"om_modify_order_ofs", "64001=501 12004=5 10306=10100", "E206",
                "Quantity 5 is below the minimum of 10", "listener", "open"},
               {"om_modify_order_walkin", "64001=503 64916=W1 12004=15 10306=10101", "E209",
                "Price 101.01 is not a multiple of the tick 0.05", "listener", "open"},
               {"om_cancel_order_walkin", "63001=nse_ipo 64001=999", "E203",
                "Order 999 is not known", nullptr, nullptr}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.text);
    SimFixture f;
    f.subscribeListeners();
    const std::string message = c.message;
    Lines expected{"reply asker " + message + " 32766=" + c.code + " 32766=" + c.text};
    if (c.to) {
      expected.push_back("live " + std::string(c.to) + " " + message + " 64655=" + c.status +
                         " 20008=" + c.text);
    }
    EXPECT_EQ(describe(f, f.ask(message, fieldsOf(c.request)), {32766, 64655, 20008}), expected);
  }
}

TEST(OrderChanges, HistoryListsEveryStateInOrder) {
  SimFixture f;
  f.ask("om_put_order_ofs", placement(""));
  f.ask("om_modify_order_ofs", fieldsOf("64001=1001 12004=15 10306=10500"));
  f.ask("om_cancel_order_ofs", fieldsOf("64001=1001 63001=nse_ipo"));
  f.ask("om_cancel_order_ofs", fieldsOf("64001=1001 63001=nse_ipo"));
  Lines expected;
  for (const char* state : {"open pending 12004=10 10306=10150", "open 12004=10 10306=10150",
                            "modified 12004=15 10306=10500", "cancelled 12004=15 10306=10500",
                            "cancel rejected 12004=15 10306=10500", ""})
    expected.push_back(std::string("reply asker om_get_order_history_ofs") +
                       (*state ? " 10303=" : "") + state);
  const auto history = f.ask("om_get_order_history_ofs", fieldsOf("64001=1001 31003=U1"));
  EXPECT_EQ(describe(f, history, {10303, 12004, 10306}), expected);
  // Every state change carries a fraction of its own, one past the change before it.
  for (size_t i = 1; i + 1 < history.size(); ++i)
    EXPECT_EQ(std::stoi(value(history[i], 50101)), std::stoi(value(history[i - 1], 50101)) + 1);
}

TEST(PriceFeed, StartsWithTheDepthAndFollowsEveryBidOfTheIssue) {
  SimFixture f;
  NullNotifier watcher;
  const auto snapshot = f.exchange.subscribe(fieldsOf("63001=nse_ipo 10100=ABC-RS"), &watcher);
  ASSERT_EQ(snapshot.size(), 1u);
  EXPECT_TRUE(snapshot[0].live);
  EXPECT_EQ(value(snapshot[0], 10100), "ABC-RS");
  std::vector<std::string> depths;  // "open pending", then "open": the depth after each
  for (const auto& d : f.ask("om_put_order_ofs", placement("")))
    if (d.to == &watcher) depths.push_back(value(d, 54283));
  ASSERT_EQ(depths.size(), 2u);
  EXPECT_NE(depths.back(), value(snapshot[0], 54283));
  EXPECT_TRUE(f.exchange.subscribe(fieldsOf("63001=nse_cm 10100=ABC"), &watcher).empty());
}

}  // namespace
}  // namespace simtest
