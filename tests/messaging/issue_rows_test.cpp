#include <gtest/gtest.h>

#include "tests/support/recording_dispatch_context.h"

#include "tests/support/field_text.h"

namespace {

// A new issue's row in the watch, its underlying's price request and its price, the issue
// without an underlying that asks nothing and the issue closed to bidding that only an
// administrator sees are the watch_tabs script's.
TEST(IssueRows, AKnownSymbolChangesNothing) {
  RecordingDispatchContext context;
  context.respond(fieldsOf("32767=om_get_ofs_issues 63032=I1 63001=bse_ipo 10100=ABC-RS 54730="));
  context.respond(
      fieldsOf("32767=om_get_ofs_issues 63032=I1 63001=bse_ipo 10100=ABC-RS 54730=ABC 63022=99"));
  EXPECT_EQ(context.store.issueSymbols, (std::vector<std::string>{"ABC-RS"}));
  EXPECT_EQ(context.store.issues["ABC-RS"]->floorPrice, "");
  EXPECT_EQ(context.events.size(), 1u);
  EXPECT_TRUE(context.channel.transcript.empty());
}

TEST(IssueRows, CategoriesCollectTheirValuesAndSummariesKeepTheFirst) {
  RecordingDispatchContext context;
  context.respond(fieldsOf("32767=om_get_ofs_category 10610=RS 13034=IND"));
  context.respond(fieldsOf("32767=om_get_ofs_category 10610=RS 13034=HUF"));
  context.respond(fieldsOf("32767=get_company_ofs_issue 63032=I1 63005=5 55=0 55=10 10027=2"));
  context.respond(fieldsOf("32767=get_company_ofs_issue 63032=I1 63005=9"));
  EXPECT_EQ(context.store.categories["RS"], (std::vector<std::string>{"IND", "HUF"}));
  const sOFSIssueSummary& summary = *context.store.issuesById["I1"];
  EXPECT_EQ((Lines{std::to_string(summary.tickSize), std::to_string(summary.minQuantity),
                   summary.lotSize}),
            (Lines{"5", "10", "2"}));
}

}  // namespace
