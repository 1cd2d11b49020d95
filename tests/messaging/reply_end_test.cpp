#include <gtest/gtest.h>

#include "tests/support/recording_dispatch_context.h"

namespace {

const Lines kIssueListRequests{"send 2 om_get_ofs_issues 63001=\"nse_ipo\" 53065=\"A\"",
                               "send 2 om_get_ofs_issues 63001=\"bse_ipo\" 53065=\"A\""};

// The closing message of a reply: its 32766 occurrences, then its 32760 occurrences.
FieldList ending(const char* name, const Lines& status, const Lines& tags = {}) {
  FieldList fields{{32767, name}};
  for (const std::string& value : status) fields.push_back({32766, value});
  for (const std::string& value : tags) fields.push_back({32760, value});
  return fields;
}

struct EndCase {
  const char* name;
  FieldList end;
  Lines events;
  Lines sent = {};
  bool dialogAdding = true;
  friend void PrintTo(const EndCase& c, std::ostream* os) { *os << c.name; }
};

class ReplyEnds : public testing::TestWithParam<EndCase> {};

TEST_P(ReplyEnds, LogShowAndRequestAsTheEndSays) {
  RecordingDispatchContext context;
  context.dialogAdding = GetParam().dialogAdding;
  context.respond(GetParam().end);
  EXPECT_EQ(context.events, GetParam().events);
  EXPECT_EQ(context.channel.transcript, GetParam().sent);
}

const char* const kRefusal =
    "log Error in response : om_add_ofs_issue . Error Code : E7 . Error Msg : Issue exists. "
    "IssueId : I9";

INSTANTIATE_TEST_SUITE_P(
    Messages, ReplyEnds,
    testing::Values(
        EndCase{"failed_reply_logs_code",
                ending("om_get_user_order_ofs", {"E42", "no orders"}),
                {"log Error in response : om_get_user_order_ofs . Error Code : E42"}},
        EndCase{"successful_end_logs_nothing", ending("om_get_ofs_issues", {""}), {}},
        EndCase{"history_end_fills_details_then_logs",
                ending("om_get_order_history_ofs", {"E1"}),
                {"history ended",
                 "log Error in response : om_get_order_history_ofs . Error Code : E1"}},
        EndCase{"issue_added",
                ending("om_add_ofs_issue", {""}, {"I9", "Normal End"}),
                {"watch refreshed", "issue dialog closed", "log OFS issue added successfully",
                 "msgbox OFS issue added successfully"},
                kIssueListRequests},
        EndCase{
            "issue_modified",
            ending("om_add_ofs_issue", {""}, {"I9", "Normal End"}),
            {"watch refreshed", "issue dialog closed", "log OFS issue modification is successful",
             "msgbox OFS issue modification is successful"},
            kIssueListRequests,
            false},
        EndCase{"upload_ended",
                ending("om_add_ofs_issue", {""}, {"I9", "Upload End"}),
                {"watch refreshed"},
                kIssueListRequests},
        EndCase{"issue_refused_shows_error_text",
                ending("om_add_ofs_issue", {"E7", "Issue exists"}, {"I9", "Normal End"}),
                {"msgbox Issue exists", kRefusal}},
        EndCase{"upload_refused_shows_no_box",
                ending("om_add_ofs_issue", {"E7", "Issue exists"}, {"I9", "Upload End"}),
                {kRefusal}},
        EndCase{"issue_refused_without_text_or_tag",
                ending("om_add_ofs_issue", {"E7"}),
                {"log Error in response : om_add_ofs_issue . Error Code : E7 . "}}),
    [](const auto& info) { return info.param.name; });

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
