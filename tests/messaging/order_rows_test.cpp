#include <gtest/gtest.h>

#include "tests/support/recording_dispatch_context.h"

#include "tests/support/field_text.h"

namespace {

// Rows go only where their key fields are all present: the order map (number and issue) or the
// history (number, user and status).
struct RowCase {
  const char* name;
  const char* row;
  size_t orders;
  size_t historyLines;
  friend void PrintTo(const RowCase& c, std::ostream* os) { *os << c.name; }
};

class KeyedRows : public testing::TestWithParam<RowCase> {};

TEST_P(KeyedRows, AreKeptOnlyWithTheirKeys) {
  RecordingDispatchContext context;
  context.respond(fieldsOf(GetParam().row));
  EXPECT_EQ(context.store.orders.size(), GetParam().orders);
  EXPECT_EQ(context.history.size(), GetParam().historyLines);
  EXPECT_TRUE(context.events.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, KeyedRows,
    testing::Values(
        RowCase{"report_without_order_number", "32767=om_order_report_ofs 63100=I1", 0, 0},
        RowCase{"report_without_issue", "32767=om_order_report_ofs 64001=17", 0, 0},
        RowCase{"user_orders_without_issue", "32767=om_get_user_order_ofs 64001=17", 0, 0},
        RowCase{"complete_history", "32767=om_get_order_history_ofs 64001=17 31003=U1 10303=open",
                0, 1},
        RowCase{"history_without_number", "32767=om_get_order_history_ofs 31003=U1 10303=open", 0,
                0},
        RowCase{"history_without_user", "32767=om_get_order_history_ofs 64001=17 10303=open", 0, 0},
        RowCase{"history_empty_status",
                "32767=om_get_order_history_ofs 64001=17 31003=U1 10303=", 0, 0}));

TEST(ReportedOrders, ARepeatedRowKeepsTheOrderALiveUpdateChangesIt) {
  RecordingDispatchContext context;
  context.respond(fieldsOf("32767=om_get_user_order_ofs 64001=17 63100=I1 64655=open 12004=10"));
  context.respond(fieldsOf("32767=om_order_report_ofs 64001=17 63100=I1 64655=complete 12004=20"));
  const sOFSOrderInfo& order = *context.store.orders["17"];
  EXPECT_EQ((Lines{order.status, order.quantity}), (Lines{"open", "10"}));
  context.update(fieldsOf("64001=17 64655=complete 12004=20"));
  EXPECT_EQ((Lines{order.status, order.quantity}), (Lines{"complete", "20"}));
  EXPECT_EQ(context.store.orders.size(), 1u);
}

TEST(HistoryRows, MarketPriceTimeAndProCli) {
  RecordingDispatchContext context;
  context.respond(
      fieldsOf("32767=om_get_order_history_ofs 64001=17 31003=U1 10303=open "
               "10306=12345 12008=MKT 50100=0 50101=42.9 54056=X"));
  ASSERT_EQ(context.history.size(), 1u);
  const sOFSOrderInfo& line = *context.history[0];
  EXPECT_EQ((Lines{line.price, line.timeText, std::to_string(line.timeFraction), line.proCliFlag}),
            (Lines{"MKT", "", "42", ""}));
}

TEST(PeerData, TheTextIsStored) {
  RecordingDispatchContext context;
  context.respond(fieldsOf("32767=om_get_user_peer_data 28561=P1|P2"));
  EXPECT_EQ(context.events, (Lines{"peer P1|P2"}));
}

}  // namespace
