#include <gtest/gtest.h>

#include "tests/support/recording_dispatch_context.h"

#include "tests/support/field_text.h"

namespace {

FieldList issueRow(const std::string& symbol, const std::string& asset,
                   const std::string& bidding = "Y") {
  return fieldsOf("32767=om_get_ofs_issues 63032=I1 63001=bse_ipo 10100=" + symbol +
                  " 54730=" + asset + " 54571=" + bidding);
}

TEST(IssueRows, ANewIssueIsAddedLinkedToItsUnderlyingAndItsPriceAsked) {
  RecordingDispatchContext context;
  context.respond(issueRow("XYZ-Retail", "XYZ"));
  EXPECT_EQ(context.events, (Lines{"issue added XYZ-Retail"}));
  EXPECT_EQ(context.channel.transcript,
            (Lines{"send 1 mrv_master 63001=\"bse_cm\" 10100=\"XYZ\" 20003=\"6\" "
                   "20003=\"63050\" 32760=\"Asset LTP\""}));
  ASSERT_TRUE(context.store.assets.contains("bse_cm|XYZ"));
  EXPECT_EQ(context.store.issues["XYZ-Retail"]->asset, context.store.assets["bse_cm|XYZ"].get());
}

TEST(IssueRows, NoUnderlyingNoAssetAndNoRequest) {
  RecordingDispatchContext context;
  context.respond(issueRow("XYZ-Retail", ""));
  EXPECT_TRUE(context.store.assets.empty());
  EXPECT_TRUE(context.channel.transcript.empty());
}

TEST(IssueRows, AnIssueClosedToBiddingIsForAdministratorsOnly) {
  RecordingDispatchContext dealer;
  dealer.respond(issueRow("XYZ-Retail", "", "N"));
  EXPECT_TRUE(dealer.store.issues.empty());
  RecordingDispatchContext administrator;
  administrator.addIssueRight = true;
  administrator.respond(issueRow("XYZ-Retail", "", "N"));
  EXPECT_EQ(administrator.events, (Lines{"issue added XYZ-Retail"}));
}

TEST(IssueRows, AKnownSymbolChangesNothing) {
  RecordingDispatchContext context;
  context.respond(issueRow("ABC-RS", ""));
  FieldList again = issueRow("ABC-RS", "ABC");
  again.push_back({63022, "99"});
  context.respond(again);
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
  EXPECT_EQ(summary.tickSize, 5);
  EXPECT_EQ(summary.minQuantity, 10);
  EXPECT_EQ(summary.lotSize, "2");
}

}  // namespace
