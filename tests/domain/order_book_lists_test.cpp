#include <gtest/gtest.h>

#include <ostream>
#include "domain/order_book_lists.h"
#include "tests/support/recording_dispatch_context.h"

namespace {

using Numbers = std::vector<std::string>;

FieldList order(const std::string& number, const std::string& status) {
  return {{64001, number}, {63100, "I1"}, {64655, status}};
}

struct UpdateCase {
  const char* name;
  std::vector<FieldList> updates;
  Numbers open;    // top line first
  Numbers closed;  // top line first
  friend void PrintTo(const UpdateCase& c, std::ostream* os) { *os << c.name; }
};

class LiveOrderUpdates : public testing::TestWithParam<UpdateCase> {};

TEST_P(LiveOrderUpdates, MoveOrdersBetweenTheLists) {
  RecordingDispatchContext context;
  for (const FieldList& update : GetParam().updates) context.update(update);
  EXPECT_EQ(RecordingDispatchContext::orderNumbers(context.book.open), GetParam().open);
  EXPECT_EQ(RecordingDispatchContext::orderNumbers(context.book.closed), GetParam().closed);
}

INSTANTIATE_TEST_SUITE_P(
    Steps, LiveOrderUpdates,
    testing::Values(
        UpdateCase{"new_orders_on_top_by_status",
                   {order("1", "open"), order("2", "open pending"), order("3", "complete"),
                    order("4", "trigger pending")},
                   {"2", "1"},
                   {"4", "3"}},
        UpdateCase{"open_to_cancelled_moves_to_closed_top",
                   {order("1", "open"), order("2", "rejected"), order("1", "cancelled")},
                   {},
                   {"1", "2"}},
        UpdateCase{"closed_to_open_moves_back",
                   {order("1", "complete"), order("2", "open"), order("1", "open")},
                   {"1", "2"},
                   {}},
        UpdateCase{"known_open_order_keeps_its_line",
                   {order("1", "open"), order("2", "open"), order("1", "open pending")},
                   {"2", "1"},
                   {}},
        // A known order with a word of neither list stays open until the next rebuild.
        UpdateCase{"known_order_unknown_word_goes_open",
                   {order("1", "complete"), order("1", "modified")},
                   {"1"},
                   {}},
        UpdateCase{
            "update_without_order_number_ignored", {{{63100, "I1"}, {64655, "open"}}}, {}, {}}));

TEST(OrderBookRebuild, HighestNumberByteWiseOnTopAndUnknownWordsClosed) {
  RecordingDispatchContext context;
  for (const auto& [number, status] : std::vector<std::pair<std::string, std::string>>{
           {"9", "open"}, {"10", "open pending"}, {"100", "complete"}, {"11", "expired"}}) {
    context.respond(
        {{32767, "om_order_report_ofs"}, {64001, number}, {63100, "I1"}, {64655, status}});
  }
  context.respond({{32767, "om_order_report_ofs"}, {32766, ""}});
  EXPECT_EQ(RecordingDispatchContext::orderNumbers(context.book.open), (Numbers{"9", "10"}));
  EXPECT_EQ(RecordingDispatchContext::orderNumbers(context.book.closed), (Numbers{"11", "100"}));
}

}  // namespace
