#include <gtest/gtest.h>

#include "tests/host_sim/sim_fixture.h"

namespace simtest {
namespace {

FieldList placement(std::initializer_list<std::pair<const uint32_t, std::string>> changes) {
  FieldList fields{{64030, "CNC"}, {63001, "nse_ipo"}, {31003, "U1"}, {54001, "A2"},
                   {63100, "N1"},  {12004, "10"},      {12008, "L"},  {10306, "10150"},
                   {54056, "C"},   {64170, "YES"},     {12005, "OFS"}};
  for (const auto& change : changes) {
    const auto& [id, v] = change;
    auto it = std::find_if(fields.begin(), fields.end(),
                           [&](auto& f) { return f.first == change.first; });
    if (it == fields.end()) {
      fields.emplace_back(id, v);
    } else {
      it->second = v;
    }
  }
  return fields;
}

TEST(OrderPlacement, RepliesWithTheRowThenBroadcastsPendingThenOpen) {
  SimFixture f;
  f.subscribeListeners();
  const auto out = f.ask("om_put_order_ofs", placement({}));
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

struct AcceptedCase {
  const char* name;
  FieldList request;
  const char* price;
  friend void PrintTo(const AcceptedCase& c, std::ostream* os) { *os << c.name; }
};

class AcceptedPlacement : public testing::TestWithParam<AcceptedCase> {};

TEST_P(AcceptedPlacement, EndsWithoutError) {
  SimFixture f;
  const auto out = f.ask("om_put_order_ofs", GetParam().request);
  ASSERT_EQ(out.size(), 2u);
  EXPECT_EQ(value(out[0], 10306), GetParam().price);
  EXPECT_EQ(values(out[1], sim::kStatus), (std::vector<std::string>{""}));
}

INSTANTIATE_TEST_SUITE_P(
    Exchange, AcceptedPlacement,
    testing::Values(
        AcceptedCase{"data_account", placement({}), "10150"},
        AcceptedCase{"terminal_account", placement({{54001, "T1"}}), "10150"},
        AcceptedCase{"cut_off_without_price", placement({{12008, "MKT"}, {10306, ""}}), "MKT"},
        AcceptedCase{"last_day_of_a_one_day_issue", placement({{63100, "N2"}}), "10150"}),
    [](const auto& info) { return std::string(info.param.name); });

struct RefusedCase {
  const char* name;
  FieldList request;
  const char* code;
  const char* text;
  friend void PrintTo(const RefusedCase& c, std::ostream* os) { *os << c.name; }
};

class RefusedPlacement : public testing::TestWithParam<RefusedCase> {};

TEST_P(RefusedPlacement, EndsInErrorAndBroadcastsARejectedOrder) {
  SimFixture f;
  f.subscribeListeners();
  const auto out = f.ask("om_put_order_ofs", GetParam().request);
  const std::string text = GetParam().text;
  EXPECT_EQ(describe(f, out, {32766, 64001, 64655, 20008}),
            (Lines{"reply asker om_put_order_ofs 32766=" + std::string(GetParam().code) +
                       " 32766=" + text,
                   "live listener om_put_order_ofs 64001=1001 64655=rejected 20008=" + text}));
  EXPECT_EQ(f.exchange.findOrder("1001")->status, "rejected");
}

INSTANTIATE_TEST_SUITE_P(
    Exchange, RefusedPlacement,
    testing::Values(
        RefusedCase{"held_by_administrator", placement({{63100, "N5"}}), "E201",
                    "Issue N5 is not open for bidding"},
        RefusedCase{"closed_yesterday", placement({{63100, "N3"}}), "E201",
                    "Issue N3 is not open for bidding"},
        RefusedCase{"opens_tomorrow", placement({{63100, "N4"}}), "E201",
                    "Issue N4 is not open for bidding"},
        RefusedCase{"unknown_issue", placement({{63100, "N9"}}), "E200", "Issue N9 is not known"},
        RefusedCase{"unknown_account", placement({{54001, "ZZ"}}), "E202",
                    "Account ZZ is not known"},
        RefusedCase{"below_minimum", placement({{12004, "5"}}), "E206",
                    "Quantity 5 is below the minimum of 10"},
        RefusedCase{"not_a_lot_multiple", placement({{12004, "12"}}), "E207",
                    "Quantity 12 is not a multiple of the lot of 5"},
        RefusedCase{"quantity_is_checked_before_price", placement({{12004, "5"}, {10306, "9995"}}),
                    "E206", "Quantity 5 is below the minimum of 10"},
        RefusedCase{"below_floor", placement({{10306, "9995"}}), "E208",
                    "Price 99.95 is below the floor price 100.00"},
        RefusedCase{"off_tick", placement({{10306, "10102"}}), "E209",
                    "Price 101.02 is not a multiple of the tick 0.05"},
        RefusedCase{"cut_off_not_taken", placement({{63100, "N2"}, {12008, "MKT"}}), "E210",
                    "Issue N2 takes no cut-off bids"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(WalkinPlacement, TakesTheIssuesExchangeAndEchoesTheMarketTag) {
  SimFixture f;
  f.subscribeListeners();
  const auto out = f.ask("om_put_order_walkin",
                         fieldsOf("63001=nse_ipo 31003=U1 63100=B1 12004=4 12008=MKT 32760=MKT "
                                  "10306=0 10332=PCW 12005=OFS 64916=W2"));
  EXPECT_EQ(describe(f, out, {63001, 64916, 10306, 64739, 64655, 32766, 32760}),
            (Lines{"reply asker om_put_order_walkin 63001=bse_ipo 64916=W2 10306=MKT 64739=PCW "
                   "64655=open pending 32760=MKT",
                   "reply asker om_put_order_walkin 32766= 32760=MKT",
                   "live bse om_put_order_walkin 63001=bse_ipo 64916=W2 10306=MKT 64739=PCW "
                   "64655=open pending",
                   "live bse om_put_order_walkin 63001=bse_ipo 64916=W2 10306=MKT 64739=PCW "
                   "64655=open"}));
}

TEST(OrderChanges, ModificationTakesTheNewPriceAndQuantity) {
  SimFixture f;
  f.subscribeListeners();
  const auto out = f.ask("om_modify_order_ofs",
                         fieldsOf("63001=nse_ipo 31003=U1 54001=A2 63100=N1 12005=OFS 12008=L "
                                  "10306=10200 12004=20 64001=501"));
  EXPECT_EQ(describe(f, out, {64001, 12004, 10306, 64655, 32766}),
            (Lines{"reply asker om_modify_order_ofs 64001=501 12004=20 10306=10200 64655=open",
                   "reply asker om_modify_order_ofs 32766=",
                   "live listener om_modify_order_ofs 64001=501 12004=20 10306=10200 64655=open"}));
}

TEST(OrderChanges, CancelOfAnyExchangeFindsTheOrderByItsNumber) {
  SimFixture f;
  f.subscribeListeners();
  // The cancel request names "nse_ipo" whatever the order's exchange; 505 is a BSE order.
  auto out = f.ask("om_cancel_order_ofs", {{63001, "nse_ipo"}, {31003, "U1"}, {64001, "505"}});
  EXPECT_EQ(describe(f, out, {64001, 63001, 64655, 32766}),
            (Lines{"reply asker om_cancel_order_ofs 64001=505 63001=bse_ipo 64655=cancelled",
                   "reply asker om_cancel_order_ofs 32766=",
                   "live bse om_cancel_order_ofs 64001=505 63001=bse_ipo 64655=cancelled"}));
}

struct ChangeCase {
  const char* name;
  const char* message;
  const char* request;
  const char* code;
  const char* text;
  const char* to = nullptr;  // who hears of the refusal, with the order's kept status
  const char* status = nullptr;
  friend void PrintTo(const ChangeCase& c, std::ostream* os) { *os << c.name; }
};

class RefusedChange : public testing::TestWithParam<ChangeCase> {};

TEST_P(RefusedChange, EndsInErrorAndKeepsTheOrdersStatus) {
  const ChangeCase& c = GetParam();
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

INSTANTIATE_TEST_SUITE_P(
    Exchange, RefusedChange,
    testing::Values(
        ChangeCase{"modify_of_a_cancelled_order", "om_modify_order_ofs",
                   "64001=504 12004=10 10306=10100", "E204", "Order 504 is no longer open",
                   "listener", "cancelled"},
        ChangeCase{"cancel_where_the_issue_forbids_it", "om_cancel_order_ofs",
                   "63001=nse_ipo 64001=507", "E205",
                   "Orders of issue B2 may not be modified or cancelled", "bse", "open"},
        ChangeCase{"modify_below_minimum", "om_modify_order_ofs", "64001=501 12004=5 10306=10100",
                   "E206", "Quantity 5 is below the minimum of 10", "listener", "open"},
        ChangeCase{"walkin_modify_off_tick", "om_modify_order_walkin",
                   "64001=503 64916=W1 12004=15 10306=10101", "E209",
                   "Price 101.01 is not a multiple of the tick 0.05", "listener", "open"},
        ChangeCase{"cancel_of_an_unknown_order_tells_nobody_else", "om_cancel_order_walkin",
                   "63001=nse_ipo 64001=999", "E203", "Order 999 is not known"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(OrderChanges, HistoryListsEveryStateInOrder) {
  SimFixture f;
  f.ask("om_put_order_ofs", placement({}));
  f.ask("om_modify_order_ofs", {{64001, "1001"}, {12004, "15"}, {10306, "10500"}});
  f.ask("om_cancel_order_ofs", {{64001, "1001"}, {63001, "nse_ipo"}});
  f.ask("om_cancel_order_ofs", {{64001, "1001"}, {63001, "nse_ipo"}});
  EXPECT_EQ(describe(f, f.ask("om_get_order_history_ofs", {{64001, "1001"}, {31003, "U1"}}),
                     {10303, 12004, 10306}),
            (Lines{"reply asker om_get_order_history_ofs 10303=open pending 12004=10 10306=10150",
                   "reply asker om_get_order_history_ofs 10303=open 12004=10 10306=10150",
                   "reply asker om_get_order_history_ofs 10303=modified 12004=15 10306=10500",
                   "reply asker om_get_order_history_ofs 10303=cancelled 12004=15 10306=10500",
                   "reply asker om_get_order_history_ofs 10303=cancel rejected 12004=15 "
                   "10306=10500",
                   "reply asker om_get_order_history_ofs"}));
}

}  // namespace
}  // namespace simtest

namespace simtest {
namespace {

TEST(PriceFeed, StartsWithTheDepthAndFollowsEveryBidOfTheIssue) {
  SimFixture f;
  NullNotifier watcher;
  const auto snapshot = f.exchange.subscribe({{63001, "nse_ipo"}, {10100, "ABC-RS"}}, &watcher);
  ASSERT_EQ(snapshot.size(), 1u);
  EXPECT_TRUE(snapshot[0].live);
  EXPECT_EQ(value(snapshot[0], 10100), "ABC-RS");
  const std::string before = value(snapshot[0], 54283);

  const auto out = f.ask("om_put_order_ofs", placement({}));
  std::vector<sim::Delivery> toWatcher;
  for (const auto& d : out)
    if (d.to == &watcher) toWatcher.push_back(d);
  ASSERT_EQ(toWatcher.size(), 2u);  // "open pending", then "open": the depth after each
  EXPECT_NE(value(toWatcher.back(), 54283), before);

  EXPECT_TRUE(f.exchange.subscribe({{63001, "nse_cm"}, {10100, "ABC"}}, &watcher).empty());
}

}  // namespace
}  // namespace simtest
