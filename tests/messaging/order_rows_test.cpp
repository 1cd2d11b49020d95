#include <gtest/gtest.h>

#include "tests/support/recording_dispatch_context.h"

#include "tests/support/field_text.h"

namespace {

struct DropCase {
  const char* name;
  const char* row;
  friend void PrintTo(const DropCase& c, std::ostream* os) { *os << c.name; }
};

class DroppedReportRows : public testing::TestWithParam<DropCase> {};

TEST_P(DroppedReportRows, CreateNoOrder) {
  RecordingDispatchContext context;
  context.respond(fieldsOf(GetParam().row));
  EXPECT_TRUE(context.store.orders.empty());
  EXPECT_TRUE(context.events.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, DroppedReportRows,
    testing::Values(DropCase{"report_without_order_number", "32767=om_order_report_ofs 63100=I1"},
                    DropCase{"report_without_issue", "32767=om_order_report_ofs 64001=17"},
                    DropCase{"user_orders_without_issue", "32767=om_get_user_order_ofs 64001=17"}),
    [](const auto& info) { return info.param.name; });

TEST(ReportedOrders, ARepeatedRowKeepsTheOrderALiveUpdateChangesIt) {
  RecordingDispatchContext context;
  context.respond(fieldsOf("32767=om_get_user_order_ofs 64001=17 63100=I1 64655=open 12004=10"));
  context.respond(fieldsOf("32767=om_order_report_ofs 64001=17 63100=I1 64655=complete 12004=20"));
  const sOFSOrderInfo& order = *context.store.orders["17"];
  EXPECT_EQ(order.status, "open");
  EXPECT_EQ(order.quantity, "10");
  context.update(fieldsOf("64001=17 64655=complete 12004=20"));
  EXPECT_EQ(order.status, "complete");
  EXPECT_EQ(order.quantity, "20");
  EXPECT_EQ(context.store.orders.size(), 1u);
}

struct HistoryCase {
  const char* name;
  const char* row;
  size_t lines;
  friend void PrintTo(const HistoryCase& c, std::ostream* os) { *os << c.name; }
};

class HistoryRows : public testing::TestWithParam<HistoryCase> {};

TEST_P(HistoryRows, AddALineOnlyWithNumberUserAndStatus) {
  RecordingDispatchContext context;
  context.respond(fieldsOf("32767=om_get_order_history_ofs " + std::string(GetParam().row)));
  EXPECT_EQ(context.history.size(), GetParam().lines);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, HistoryRows,
    testing::Values(HistoryCase{"complete_row", "64001=17 31003=U1 10303=open", 1},
                    HistoryCase{"no_order_number", "31003=U1 10303=open", 0},
                    HistoryCase{"no_user", "64001=17 10303=open", 0},
                    HistoryCase{"empty_status", "64001=17 31003=U1 10303=", 0}),
    [](const auto& info) { return info.param.name; });

TEST(HistoryRows, MarketPriceTimeAndProCli) {
  RecordingDispatchContext context;
  context.respond(
      fieldsOf("32767=om_get_order_history_ofs 64001=17 31003=U1 10303=open "
               "10306=12345 12008=MKT 50100=0 50101=42.9 54056=X"));
  ASSERT_EQ(context.history.size(), 1u);
  const sOFSOrderInfo& line = *context.history[0];
  EXPECT_EQ(line.price, "MKT");
  EXPECT_EQ(line.timeText, "");
  EXPECT_EQ(line.timeFraction, 42);
  EXPECT_EQ(line.proCliFlag, "");
}

TEST(PeerData, TheTextIsStored) {
  RecordingDispatchContext context;
  context.respond(fieldsOf("32767=om_get_user_peer_data 28561=P1|P2"));
  EXPECT_EQ(context.events, (Lines{"peer P1|P2"}));
}

}  // namespace
