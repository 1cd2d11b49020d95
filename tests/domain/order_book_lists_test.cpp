#include <gtest/gtest.h>

#include "domain/order_book_lists.h"
#include "tests/support/recording_dispatch_context.h"

namespace {

using Numbers = std::vector<std::string>;

FieldList order(const std::string& number, const std::string& status) {
  return {{64001, number}, {63100, "I1"}, {64655, status}};
}

TEST(LiveOrderUpdates, MoveOrdersBetweenTheLists) {
  struct Case {
    std::vector<FieldList> updates;
    Numbers open;    // top line first
    Numbers closed;  // top line first
  };
  const std::vector<Case> cases{
      {{order("1", "open"), order("2", "open pending"), order("3", "complete"),
        order("4", "trigger pending")},
       {"2", "1"},
       {"4", "3"}},
      {{order("1", "open"), order("2", "rejected"), order("1", "cancelled")}, {}, {"1", "2"}},
      {{order("1", "complete"), order("2", "open"), order("1", "open")}, {"1", "2"}, {}},
      {{order("1", "open"), order("2", "open"), order("1", "open pending")}, {"2", "1"}, {}},
      // A known order with a word of neither list stays open until the next rebuild.
      {{order("1", "complete"), order("1", "modified")}, {"1"}, {}},
      {{{{63100, "I1"}, {64655, "open"}}}, {}, {}}};  // no order number: ignored
  for (size_t i = 0; i < cases.size(); ++i) {
    RecordingDispatchContext context;
    for (const FieldList& update : cases[i].updates) context.update(update);
    EXPECT_EQ(RecordingDispatchContext::orderNumbers(context.book.open), cases[i].open) << i;
    EXPECT_EQ(RecordingDispatchContext::orderNumbers(context.book.closed), cases[i].closed) << i;
  }
}

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
