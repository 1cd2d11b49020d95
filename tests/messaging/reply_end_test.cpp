#include <gtest/gtest.h>

#include "tests/support/field_text.h"
#include "tests/support/recording_dispatch_context.h"

namespace {

const Lines kIssueListRequests{wireLine("send 2 om_get_ofs_issues", "63001=nse_ipo 53065=A"),
                               wireLine("send 2 om_get_ofs_issues", "63001=bse_ipo 53065=A")};

struct EndCase {
  const char* name;
  std::string end;
  Lines events;
  Lines sent = {};
  bool dialogAdding = true;
  friend void PrintTo(const EndCase& c, std::ostream* os) { *os << c.name; }
};

class ReplyEnds : public testing::TestWithParam<EndCase> {};

TEST_P(ReplyEnds, LogShowAndRequestAsTheEndSays) {
  RecordingDispatchContext context;
  context.dialogAdding = GetParam().dialogAdding;
  context.respond(fieldsOf(GetParam().end));
  EXPECT_EQ(context.events, GetParam().events);
  EXPECT_EQ(context.channel.transcript, GetParam().sent);
}

const std::string kAdded = "32767=om_add_ofs_issue 32766= 32760=I9 32760=",
                  kRefused = "32767=om_add_ofs_issue 32766=E7 32766=Issue exists 32760=I9 32760=";
const char* const kRefusal =
    "log Error in response : om_add_ofs_issue . Error Code : E7 . Error Msg : Issue exists. "
    "IssueId : I9";

INSTANTIATE_TEST_SUITE_P(
    Messages, ReplyEnds,
    testing::Values(
        EndCase{"failed_reply_logs_code",
                "32767=om_get_user_order_ofs 32766=E42 32766=no orders",
                {"log Error in response : om_get_user_order_ofs . Error Code : E42"}},
        EndCase{"successful_end_logs_nothing", "32767=om_get_ofs_issues 32766=", {}},
        EndCase{"history_end_fills_details_then_logs",
                "32767=om_get_order_history_ofs 32766=E1",
                {"history ended",
                 "log Error in response : om_get_order_history_ofs . Error Code : E1"}},
        EndCase{"issue_added",
                kAdded + "Normal End",
                {"watch refreshed", "issue dialog closed", "log OFS issue added successfully",
                 "msgbox OFS issue added successfully"},
                kIssueListRequests},
        EndCase{
            "issue_modified",
            kAdded + "Normal End",
            {"watch refreshed", "issue dialog closed", "log OFS issue modification is successful",
             "msgbox OFS issue modification is successful"},
            kIssueListRequests,
            false},
        EndCase{"upload_ended", kAdded + "Upload End", {"watch refreshed"}, kIssueListRequests},
        EndCase{"issue_refused_shows_error_text",
                kRefused + "Normal End",
                {"msgbox Issue exists", kRefusal}},
        EndCase{"upload_refused_shows_no_box", kRefused + "Upload End", {kRefusal}},
        EndCase{"issue_refused_without_text_or_tag",
                "32767=om_add_ofs_issue 32766=E7",
                {"log Error in response : om_add_ofs_issue . Error Code : E7 . "}}));

struct ResetCounter : BookListListener {
  void beforeReset() override { ++resets; }
  int resets = 0;
};

TEST(OrderBookReply, RowsFillTheMapAndOnlyTheEndRebuildsTheLists) {
  RecordingDispatchContext context;
  ResetCounter open;
  context.book.open.setListener(&open);
  for (const char* number : {"3", "1", "2"})
    context.respond(
        {{32767, "om_order_report_ofs"}, {64001, number}, {63100, "I1"}, {64655, "open"}});
  EXPECT_EQ(context.store.orders.size(), 3u);
  EXPECT_EQ(context.book.open.rowCount(), 0u);
  context.respond({{32767, "om_order_report_ofs"}, {32766, ""}});
  EXPECT_EQ(open.resets, 1);
  EXPECT_EQ(RecordingDispatchContext::orderNumbers(context.book.open),
            (std::vector<std::string>{"3", "2", "1"}));
}

}  // namespace
